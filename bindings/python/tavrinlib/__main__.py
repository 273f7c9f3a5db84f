"""Prints what a printer definition says, as `tavrin show --format=json` does."""

from __future__ import annotations

import argparse
import json
import math
import sys
from typing import Any, NoReturn, Optional

from . import Session, TavrinError

_UINT32 = 2**32


def _utf8(text: Optional[str]) -> Optional[str]:
    """Bytes of the definition that are no text become what stands for such bytes."""
    return text and text.encode("utf-8", "surrogatepass").decode("utf-8", "replace")


def facts(printer: Session) -> dict[str, Any]:
    """All answers under the names of docs/show-json.md."""
    model_name, version, network_address = map(_utf8, printer.identity_texts())
    volume, support, switches = printer.build_volume, printer.support, printer.switches
    head_band = printer.head_band_mm
    return {
        "identity": {
            "modelName": model_name,
            "version": version,
            "networkAddress": network_address,
        },
        "buildVolume": {
            "widthUm": volume.width % _UINT32,
            "depthUm": volume.depth % _UINT32,
            "heightUm": volume.height % _UINT32,
            "printMarginUm": printer.print_margin,
        },
        "printModes": [
            {
                "index": index,
                "number": mode.number,
                "sliceUm": mode.slice_height,
                "firstValue": mode.first_value,
                "secondValue": mode.second_value,
                "layers": mode.slice_count,
                "limited": mode.limited,
                "continuousLimit": mode.limited_continuous,
            }
            for index, mode in enumerate(printer.modes)
        ],
        "defaultModeNumber": printer.default_mode,
        "support": {
            "topThicknessUm": support.top_thickness,
            "sideThicknesses": [
                {"modelHeightUm": height, "thicknessUm": printer.side_support(height)}
                for height in (10_000, 50_000, 100_000)
            ],
            "detachLayerUm": support.detach_layer_height,
            "sizeCode": support.size_code,
        },
        "machine": {
            "smoothing": switches.smoothing,
            "feedBiDirection": switches.feed_bidirection,
            "wrapReduction": switches.wrap_reduction,
            "autoCleaning": switches.auto_cleaning,
            "checkNozzleWhilePrinting": switches.check_nozzle_while_printing,
            "headBandMm": head_band if math.isfinite(head_band) else None,
            "chippingAllowanceSetting": printer.chipping_allowance,
        },
        "inkSlots": [
            {
                "number": slot.number,
                "colorCode": slot.color_code,
                "inkTypeCode": slot.ink_type_code,
                "inkId": _utf8(slot.ink_id),
                "inkName": _utf8(slot.ink_name),
                "valid": slot.valid,
            }
            for slot in printer.slots
        ],
        "inkCategories": [
            {"index": category.index, "slotNumbers": category.slot_numbers}
            for category in printer.categories
        ],
    }


class _Parser(argparse.ArgumentParser):
    def error(self, message: str) -> NoReturn:
        self.print_usage(sys.stderr)
        self.exit(4, f"{self.prog}: {message}\n")


def main() -> int:
    """The exit status, as the tool's: 2 where the definition does not load or a text is too long,
    3 where the file cannot be read, 4 for a mistake in the command line."""
    parser = _Parser("python3 -m tavrinlib", description=__doc__)
    parser.add_argument("definition", help="the printer definition file")
    arguments = parser.parse_args()
    try:
        with Session(arguments.definition) as printer:
            answers = facts(printer)
        print(json.dumps(answers, indent=2), flush=True)
    except (OSError, TavrinError) as error:
        print(f"tavrinlib: {error}", file=sys.stderr)
        return 3 if isinstance(error, OSError) or getattr(error, "unreadable", False) else 2
    if answers["identity"]["networkAddress"] is None:
        print("tavrinlib: a text of the identity is longer than 128 bytes", file=sys.stderr)
        return 2
    return 0


if __name__ == "__main__":
    sys.exit(main())
