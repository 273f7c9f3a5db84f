#pragma once

#include "Report.h"

namespace tavrin::tool {

// Each adds one section to the report, from what the loaded printer definition answers.

void ShowIdentity(Report* report);
void ShowBuildVolume(Report* report);
void ShowModes(Report* report);
void ShowSupport(Report* report);
void ShowMachine(Report* report);

}  // namespace tavrin::tool
