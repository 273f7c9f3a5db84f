#include "bench/BenchDefinition.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>

#include "bench/FileFloor.h"
#include "definition/FileCipher.h"
#include "util/TextUtilities.h"

namespace tavrin::bench {

namespace {

std::string Example(const std::string& name) {
  return ReadBare(TAVRIN_EXAMPLES_DIR "/" + name);
}

}  // namespace

BenchDefinition::BenchDefinition(const std::string& plain)
    : path_(InTemporaryFolder("tavrin-bench.dat")) {
  std::string block = plain;
  EncryptBuffer(reinterpret_cast<unsigned char*>(block.data()),
                static_cast<std::uint32_t>(block.size()));
  WriteBare(path_, block);
}

BenchDefinition::~BenchDefinition() {
  std::remove(path_.c_str());
}

std::string InTemporaryFolder(const char* name) {
  return (std::filesystem::temp_directory_path() / name).string();
}

std::string RichExample() {
  return Example("full-colour.ini");
}

std::string CompactExample() {
  return Example("compact.ini");
}

std::string MinimalExample() {
  return Example("minimal.ini");
}

std::string PaddedExample() {
  std::string text = RichExample();
  const auto lines = std::count(text.begin(), text.end(), '\n');
  for (auto line = lines; line < 10 * lines; ++line) {
    text += "Padding" + std::to_string(line) + "=0.0421,1\n";
  }
  return text;
}

std::string Synthetic(int keys) {
  const int slots = keys / 4;
  const std::string count = std::to_string(slots);
  std::string text = "[printer]\nVersion=1\nNumOfColor=" + count + "\nPrinterInkSlotNum=" + count;
  for (int slot = 1; slot <= slots; ++slot) {
    const std::string number = std::to_string(slot);
    const std::string color = "\nColor" + FormatThreeDigits(slot);
    text += color + "Code=" + number;
    text += color + "Name=Colour " + number;
    text += "\nColorCodeInkSlot" + number + "=" + number;
    text += "\nInkTypeCodeInkSlot" + number + "=113";
  }
  return text + "\n";
}

}  // namespace tavrin::bench
