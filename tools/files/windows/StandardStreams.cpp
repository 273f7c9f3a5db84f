#include "files/StandardStreams.h"

#include <cstdio>

#include <windows.h>
#include <fcntl.h>
#include <io.h>

namespace tavrin::tool {

namespace {

bool IsConsole(DWORD stream) {
  DWORD mode = 0;
  return GetConsoleMode(GetStdHandle(stream), &mode) != 0;
}

}  // namespace

void MakeStandardOutputBinary() {
  _setmode(_fileno(stdout), _O_BINARY);
}

void MakeStandardInputBinary() {
  _setmode(_fileno(stdin), _O_BINARY);
}

bool IsTerminal() {
  return IsConsole(STD_OUTPUT_HANDLE);
}

bool PrepareTerminalColors() {
  const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode = 0;
  return GetConsoleMode(output, &mode) != 0 &&
         SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

bool TakesUtf8() {
  const bool isShown = IsTerminal() || IsConsole(STD_ERROR_HANDLE);
  return !isShown || GetConsoleOutputCP() == CP_UTF8;
}

std::string EnvironmentValue(const char* name) {
  std::string value(GetEnvironmentVariableA(name, nullptr, 0), '\0');
  value.resize(GetEnvironmentVariableA(name, value.data(), static_cast<DWORD>(value.size())));
  return value;
}

}  // namespace tavrin::tool
