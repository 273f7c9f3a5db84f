// What libc++ expects of Microsoft's headers and MinGW's do not declare. Where the sources are
// compiled for Microsoft's interface, and no further, MinGW's stand in for them.
#pragma once

#include <locale.h>

extern "C" {
float _strtof_l(const char* text, char** end, _locale_t locale);
long double _strtold_l(const char* text, char** end, _locale_t locale);
}

template <typename Number>
bool isinf(Number number) noexcept;
template <typename Number>
bool isnan(Number number) noexcept;
