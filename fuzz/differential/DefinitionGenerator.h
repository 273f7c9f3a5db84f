#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <random>
#include <string>

namespace tavrin::test {

/// Makes a plain definition of a seed, the same on every platform: all keys of the format, with odd
/// values, spellings, repetitions and lines between them, in Windows-1252 or in UTF-16.
///
/// Left out is what the profile functions of Wine treat otherwise than those of Windows, which the
/// portable ones follow, and what has no answer that is common to all code pages:
/// - a header with a second ']' (Wine's name runs to the last one) or without any (Wine has no
///   header there)
/// - a UTF-8 or a big-endian UTF-16 mark (Wine decodes what follows)
/// - quoted values of about 521 characters (Wine cuts one that fits) and values of 65536 and more
///   (Wine keeps more than 16 bits of a length)
/// - the five bytes that Windows-1252 leaves open (Windows makes them control characters, while
///   glibc's locale of that name has no character for them)
/// - halves of UTF-16 characters and U+FFFD (in such a text Windows finds no narrow one at all, the
///   portable conversion puts '?' for what it could not decode)
class DefinitionGenerator {
 public:
  explicit DefinitionGenerator(std::uint64_t seed) : random_(seed) {}

  std::string Make();

 private:
  std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(random_() % limit); }
  bool OneIn(std::size_t n) { return Below(n) == 0; }
  /// One of the texts between the bars.
  std::string OneOf(const std::string& alternatives);

  std::string Integer();
  std::string Number();
  std::string Text();
  std::string LongText();
  std::string List(std::size_t fields, std::string (DefinitionGenerator::*field)());
  std::string Blanks();
  std::string Quoted(const std::string& value);
  std::string AnyCase(std::string name);

  void Header(const char* name);
  void Key(const std::string& name, const std::string& value);
  void Line(std::initializer_list<std::string> parts);
  void Noise();

  void Identity();
  void Dimensions();
  void Support();
  void Switches();
  void CuttingMargin();
  void Modes();
  void Table(const std::string& countKey, const std::string& prefix);
  void InkSlots();
  std::string Encoded();

  std::mt19937_64 random_;
  std::string text_;
};

}  // namespace tavrin::test
