#include "sheet/SheetStyle.h"

namespace tavrin::tool {

const char kSheetStyle[] = R"css(
:root {
  --paper: #ffffff; --desk: #eef1f4; --ink: #1b2127; --faint: #5b6670; --rule: #d4dae0;
  --accent: #0a6c93; --wash: #e3f1f7; --margin: #f3c77a; --detach: #b0560a; --top: #7a3fa0;
  --good: #1c6e3a; --good-wash: #e2f3e8; --warn: #8a5300; --warn-wash: #fdf0d8;
  --bad: #a3221c; --bad-wash: #fce5e3;
}
@media screen and (prefers-color-scheme: dark) {
  :root {
    --paper: #171c21; --desk: #0e1215; --ink: #e4e9ed; --faint: #9aa7b2; --rule: #333d46;
    --accent: #57bfe6; --wash: #16323f; --margin: #8a6420; --detach: #f0a35a; --top: #c79be8;
    --good: #7fd79d; --good-wash: #14301f; --warn: #f3bf66; --warn-wash: #38290d;
    --bad: #ff9d95; --bad-wash: #401a18;
  }
}
* { box-sizing: border-box; }
html { -webkit-text-size-adjust: 100%; }
body {
  margin: 0; padding: 24px 12px; background: var(--desk); color: var(--ink);
  font: 15px/1.45 system-ui, "Segoe UI", "Helvetica Neue", Arial, "Liberation Sans", sans-serif;
  -webkit-print-color-adjust: exact; print-color-adjust: exact;
}
article {
  max-width: 1080px; margin: 0 auto 24px; padding: 32px; background: var(--paper);
  border: 1px solid var(--rule); border-top: 6px solid var(--accent); border-radius: 6px;
}
h1, h2, td, tbody th, dd, p { overflow-wrap: anywhere; }
h1 { margin: 0; font-size: 34px; line-height: 1.15; }
h2 { margin: 0 0 8px; padding-bottom: 4px; font-size: 17px; border-bottom: 2px solid var(--accent); }
p { margin: 8px 0 0; }
.kind, .note, dt { color: var(--faint); }
.kind { margin: 0 0 2px; font-size: 13px; letter-spacing: .06em; text-transform: uppercase; }
.note { font-size: 13px; }
header { display: flex; flex-wrap: wrap; gap: 12px 32px; justify-content: space-between; align-items: flex-end; }
header > div { min-width: 0; }
.verdict { margin: 0; padding: 6px 14px; border: 1px solid; border-radius: 99px; font-weight: 600; }
.good { color: var(--good); background: var(--good-wash); }
.warn { color: var(--warn); background: var(--warn-wash); }
.bad { color: var(--bad); background: var(--bad-wash); }
.identity {
  display: grid; grid-template-rows: auto auto; grid-auto-flow: column;
  grid-auto-columns: minmax(0, 1fr); column-gap: 24px; margin: 20px 0 0;
}
dt { font-size: 13px; }
dd { margin: 0; font-weight: 600; }
.pair { display: grid; grid-template-columns: minmax(0, 1fr) minmax(0, 1fr); gap: 28px; }
.wider { grid-template-columns: minmax(0, 13fr) minmax(0, 9fr); }
section { min-width: 0; margin-top: 28px; }
.pair > section { margin-top: 0; }
.pair { margin-top: 28px; }
table { width: 100%; border-collapse: collapse; table-layout: fixed; }
caption { padding: 0 0 6px; text-align: left; color: var(--faint); font-size: 13px; }
th, td { padding: 5px 8px 5px 0; border-bottom: 1px solid var(--rule); text-align: left; vertical-align: top; }
th:last-child, td:last-child { padding-right: 0; }
thead th { color: var(--faint); font-size: 13px; font-weight: 600; vertical-align: bottom; }
tbody th { font-weight: 400; }
td { font-variant-numeric: tabular-nums; }
.facts td { width: 41%; font-weight: 600; }
.tag {
  display: inline-block; margin-left: 2px; padding: 0 6px; border: 1px solid; border-radius: 4px;
  font-size: 12px; font-weight: 600; line-height: 1.4; white-space: nowrap;
}
.built-in { color: var(--faint); font-weight: 400; border-style: dashed; }
.default { color: var(--accent); background: var(--wash); }
.off { color: var(--faint); font-weight: 400; }
.modes th:nth-child(1) { width: 32%; }
.modes th:nth-child(4) { width: 19%; }
.slots th:nth-child(1) { width: 14%; }
.slots th:nth-child(3) { width: 17%; }
.slots th:nth-child(4), .slots th:nth-child(5) { width: 15%; }
.categories th:nth-child(1) { width: 14%; }
.categories th:nth-child(3) { width: 43%; }
.findings th:nth-child(1) { width: 4em; }
.findings th:nth-child(2) { width: 6.5em; }
.slot span { white-space: nowrap; }
.modes tbody th { font-weight: 600; }
.modes .limited { background: var(--warn-wash); }
.limit { color: var(--faint); font-size: 13px; font-weight: 400; }
.measure { display: flex; align-items: center; }
.measure span { flex: none; min-width: 4.6em; }
.id { white-space: nowrap; }
svg { display: block; }
.drawing { width: 100%; max-width: 460px; margin: 0 auto 8px; }
.drawing text { fill: var(--ink); font-size: 13.5px; }
.wall { fill: var(--wash); fill-opacity: .35; }
.margin { fill: var(--margin); stroke: var(--ink); stroke-width: .6; stroke-linejoin: round; }
.area { fill: var(--wash); }
.leader { stroke: var(--faint); stroke-width: 1; }
.edge { fill: none; stroke: var(--ink); stroke-width: 1.3; stroke-linejoin: round; stroke-linecap: round; }
.hidden { stroke: var(--faint); stroke-width: 1; stroke-dasharray: 4 4; }
.ruler { stroke: var(--faint); stroke-width: 1.4; }
.grid { stroke: var(--rule); stroke-width: 1; }
.axis { stroke: var(--faint); stroke-width: 1.4; }
.curve { fill: none; stroke: var(--accent); stroke-width: 3; stroke-linejoin: round; }
.under { fill: var(--accent); fill-opacity: .13; }
.detach { stroke: var(--detach); stroke-width: 2; stroke-dasharray: 9 4; }
.top { stroke: var(--top); stroke-width: 2; stroke-dasharray: 2 4; }
.key { display: inline-block; width: 28px; height: 8px; margin-right: 8px; }
.bar { flex: 1; width: 100%; min-width: 0; height: 8px; }
.track { fill: var(--rule); fill-opacity: .6; }
.fill { fill: var(--accent); }
.swatch { flex: none; width: 22px; height: 22px; border: 1px solid #7d8790; border-radius: 4px; }
.clear { fill: #eef6fb; }
.shine { stroke: #86b4cc; stroke-width: 1.5; fill: none; }
.support { fill: #d9cfbd; }
.weave { stroke: #8d7f66; stroke-width: 1.5; fill: none; }
.what { fill: #33383d; font-size: 10px; font-weight: 700; text-anchor: middle; }
.rack { display: grid; grid-template-columns: repeat(8, minmax(0, 1fr)); gap: 4px; margin-bottom: 14px; }
.thread { align-self: center; height: 2px; background: var(--accent); }
.category {
  min-width: 0; padding: 1px 6px; overflow: hidden; color: var(--accent); background: var(--wash);
  border: 1px solid var(--accent); border-radius: 4px; font-size: 12px; line-height: 18px; min-height: 22px;
  white-space: nowrap; text-overflow: ellipsis;
}
.tank { min-width: 0; text-align: center; font-size: 12px; line-height: 1.25; }
.tank b { display: block; margin-top: 4px; font-size: 15px; }
.tank span {
  display: -webkit-box; overflow: hidden; overflow-wrap: anywhere;
  -webkit-line-clamp: 3; -webkit-box-orient: vertical;
}
.tank .swatch { width: 100%; height: 46px; margin: 2px 0 4px; border-radius: 4px 4px 10px 10px; }
.slot { display: flex; gap: 8px; align-items: center; font-weight: 600; }
.findings .tag, footer .tag { margin: 0; }
footer { margin-top: 24px; padding-top: 10px; border-top: 1px solid var(--rule); color: var(--faint); font-size: 13px; }
@media (max-width: 620px) {
  body { padding: 0; font-size: 14px; }
  article { margin: 0 0 16px; padding: 18px 14px; border-width: 6px 0 0; border-radius: 0; }
  h1 { font-size: 26px; }
  .identity { grid-template-rows: repeat(4, auto); }
  .identity dd { margin-bottom: 8px; }
  .measure { display: block; }
  .measure .bar { margin-top: 4px; }
  .pair, .wider { grid-template-columns: minmax(0, 1fr); }
  .drawing text { font-size: 15px; }
  .rack { gap: 3px; }
  .category { padding: 1px 3px; text-align: center; }
  .category span, .tank span { display: none; }
}
@media print {
  @page { size: A4; margin: 8mm 12mm; }
  body { padding: 0; background: none; font-size: 8.8pt; line-height: 1.22; }
  article { max-width: none; margin: 0; padding: 5px 0 0; border-width: 4px 0 0; border-radius: 0; }
  article + article { break-before: page; }
  h1 { font-size: 20pt; }
  h2 { margin-bottom: 4px; padding-bottom: 2px; font-size: 10.5pt; break-after: avoid; }
  caption { padding-bottom: 2px; }
  .identity { margin-top: 8px; }
  .kind, .note, dt, caption, thead th, .limit, footer { font-size: 8pt; }
  .tag, .category, .tank { font-size: 7.5pt; }
  .pair { gap: 22px; margin-top: 12px; }
  section { margin-top: 12px; }
  th, td { padding-top: 1.5px; padding-bottom: 1.5px; }
  tr, .rack, .drawing { break-inside: avoid; }
  thead { display: table-header-group; break-inside: avoid; break-after: avoid; }
  .drawing { max-width: 250px; margin-bottom: 0; }
  .drawing text { font-size: 16.5px; }
  .bar { height: 6px; }
  .slot { gap: 5px; }
  .slot .swatch { width: 13px; height: 13px; }
  .rack { gap: 3px; margin-bottom: 6px; }
  .category { min-height: 0; line-height: 14px; }
  .tank b { font-size: 10pt; }
  .tank .swatch { height: 26px; margin-bottom: 2px; }
  .tank span { display: none; }
  footer { margin-top: 10px; padding-top: 4px; }
  .clean { display: none; }
}
)css";

}  // namespace tavrin::tool
