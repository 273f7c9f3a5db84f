// The same host program as example_host, over the C++17 layer.
#include <cstdio>
#include <exception>

#include "TavrinSession.h"

namespace {

using tavrinlib::Millimetres;

void PrintModel(const tavrinlib::Session& session) {
  const tavrinlib::PrinterIdentity identity = session.Identity();
  std::printf("Model %s, version %s\n", identity.modelName.c_str(), identity.version.c_str());
}

void PrintBuildVolume(const tavrinlib::Session& session) {
  const tavrinlib::Volume volume = session.BuildVolume();
  std::printf("Builds %.3f x %.3f x %.3f mm\n", Millimetres(volume.width).count,
              Millimetres(volume.depth).count, Millimetres(volume.height).count);
}

void PrintModes(const tavrinlib::Session& session) {
  for (const tavrinlib::PrintMode& mode : session.Modes()) {
    std::printf("Mode %d: slices of %d um, at most %d of them\n", mode.number,
                mode.sliceHeight.count, mode.sliceCount.value_or(0));
  }
}

void PrintInks(const tavrinlib::Session& session) {
  for (const tavrinlib::Slot& slot : session.Slots()) {
    std::printf("Slot %u: %s\n", slot.number, slot.valid ? slot.inkName.c_str() : "unknown ink");
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: session_host DEFINITION CONDITIONS\n");
    return 2;
  }
  try {
    const tavrinlib::Session session(argv[1]);
    PrintModel(session);
    PrintBuildVolume(session);
    PrintModes(session);
    PrintInks(session);
    session.WriteModelingConditions(argv[2]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
  return 0;
}
