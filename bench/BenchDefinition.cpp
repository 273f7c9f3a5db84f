#include "bench/BenchDefinition.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "definition/FileBytes.h"
#include "definition/FileCipher.h"
#include "definition/PrinterConfig.h"
#include "definition/TextConversion.h"

namespace tavrin::bench {

namespace {

/// Notes the keys that pass through.
class RecordingIni : public IniFile {
 public:
  using IniFile::ReadString;
  bool ReadString(const std::wstring& section, const std::wstring& key,
                  std::wstring* value) override {
    keys.push_back(NarrowCopy(key));
    return IniFile::ReadString(section, key, value);
  }

  std::vector<std::string> keys;
};

std::string InTemporaryFolder(const char* name) {
  return (std::filesystem::temp_directory_path() / name).string();
}

void Write(const std::string& path, const std::string& bytes) {
  WriteFileBytes(path, reinterpret_cast<const unsigned char*>(bytes.data()),
                 static_cast<std::uint32_t>(bytes.size()));
}

std::vector<std::string> KeysAskedOf(const std::string& plain) {
  const std::string path = InTemporaryFolder("tavrin-bench.ini");
  Write(path, plain);
  RecordingIni ini;
  ini.Open(WideCopy(path));
  PrinterConfig().ParseOpened(ini);
  std::remove(path.c_str());
  return ini.keys;
}

}  // namespace

BenchDefinition::BenchDefinition(const std::string& plain)
    : path_(InTemporaryFolder("tavrin-bench.dat")), keys_(KeysAskedOf(plain)) {
  std::string block = plain;
  EncryptBuffer(reinterpret_cast<unsigned char*>(block.data()),
                static_cast<std::uint32_t>(block.size()));
  Write(path_, block);
}

BenchDefinition::~BenchDefinition() {
  std::remove(path_.c_str());
}

std::string RichExample() {
  std::ostringstream text;
  text << std::ifstream(TAVRIN_EXAMPLES_DIR "/full-colour.ini", std::ios::binary).rdbuf();
  return text.str();
}

std::string PaddedExample() {
  std::string text = RichExample();
  const auto lines = std::count(text.begin(), text.end(), '\n');
  for (auto line = lines; line < 10 * lines; ++line) {
    text += "Padding" + std::to_string(line) + "=0.0421,1\n";
  }
  return text;
}

}  // namespace tavrin::bench
