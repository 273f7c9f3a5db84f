#pragma once

#include "Report.h"

namespace tavrin::tool {

// Each adds one section on the printer's inks to the report.

void ShowInkSlots(Report* report);
void ShowColors(Report* report);
void ShowInkTypes(Report* report);
void ShowInkCategories(Report* report);

}  // namespace tavrin::tool
