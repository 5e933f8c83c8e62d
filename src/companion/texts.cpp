#include "companion/texts.h"

#include <array>

namespace tidewell {

namespace {

struct Words {
  const wchar_t* english;
  const wchar_t* german;
};

// In the order of Word.
constexpr std::array<Words, 34> kWords = {{
    {L"on", L"ein"},
    {L"off", L"aus"},
    {L"none", L"keine"},
    {L"none", L"keins"},
    {L"(absent)", L"(fehlt)"},
    {L"(empty)", L"(leer)"},
    {L"no such choice", L"keine gültige Auswahl"},
    {L"depends on the screen", L"hängt vom Bildschirm ab"},
    {L"depends on the locale", L"hängt vom Gebietsschema ab"},
    {L"the install folder", L"der Programmordner"},
    {L"Other values", L"Weitere Werte"},
    {L"Category records", L"Kategorieeinträge"},
    {L"Filters", L"Filter"},
    {L"On no page", L"Auf keiner Seite"},
    {L"shown", L"sichtbar"},
    {L"position", L"Position"},
    {L"name", L"Name"},
    {L"weight", L"Schriftstärke"},
    {L"italic", L"kursiv"},
    {L"underlined", L"unterstrichen"},
    {L"struck out", L"durchgestrichen"},
    {L"height", L"Höhe"},
    {L"bold", L"fett"},
    {L"with uncategorized items", L"mit Einträgen ohne Kategorie"},
    {L"hidden", L"ausgeblendet"},
    {L"filters", L"Filter"},
    {L"kept by the Today item", L"vom Heute-Element verwaltet"},
    {L"not part of a backup", L"nicht Teil einer Sicherung"},
    {L"set after the first start", L"nach dem ersten Start gesetzt"},
    {L"chosen on the Today screen", L"auf dem Heute-Bildschirm gewählt"},
    {L"stored with another setting", L"mit einer anderen Einstellung gespeichert"},
    {L"not in the list of tabs", L"nicht in der Liste der Tabs"},
    {L"no page shows it", L"keine Seite zeigt es"},
    {L"to", L"bis"},
}};

constexpr std::uint32_t kUnreadable = 0xFFFD;

void AppendUtf8(std::string& text, std::uint32_t code) {
  constexpr std::array<std::uint32_t, 3> kLimits = {0x80, 0x800, 0x10000};
  constexpr std::array<std::uint32_t, 4> kLeads = {0, 0xC0, 0xE0, 0xF0};
  std::size_t more = 0;
  while (more < kLimits.size() && code >= kLimits[more]) ++more;
  text += static_cast<char>(kLeads[more] | code >> (6 * more));
  while (more-- > 0) text += static_cast<char>(0x80 | (code >> (6 * more) & 0x3F));
}

// 0 behind the end.
std::uint32_t UnitAt(std::wstring_view text, std::size_t place) {
  return place < text.size() ? static_cast<std::uint32_t>(text[place]) & 0xFFFF : 0;
}

// Takes a character off the front; a byte that begins none counts as what cannot be read.
std::uint32_t TakeUtf8(std::string_view& text) {
  const auto lead = static_cast<unsigned char>(text.front());
  text.remove_prefix(1);
  if (lead < 0x80) return lead;
  const std::size_t more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < more) return kUnreadable;
  std::uint32_t code = lead & (0x3Fu >> more);
  for (std::size_t i = 0; i < more; ++i) {
    const auto next = static_cast<unsigned char>(text[i]);
    if ((next & 0xC0) != 0x80) return kUnreadable;
    code = code << 6 | (next & 0x3F);
  }
  text.remove_prefix(more);
  return code;
}

}  // namespace

const std::map<int, std::wstring>& TextsOf(Tongue tongue) {
  return tongue == Tongue::kGerman ? GermanTexts() : EnglishTexts();
}

const wchar_t* WordIn(Tongue tongue, Word word) {
  const Words& words = kWords[static_cast<std::size_t>(word)];
  return tongue == Tongue::kGerman ? words.german : words.english;
}

std::uint32_t TakeCharacter(std::wstring_view& text) {
  const std::uint32_t code = UnitAt(text, 0);
  const std::uint32_t low = UnitAt(text, 1);
  const bool isPair = code >= 0xD800 && code < 0xDC00 && low >= 0xDC00 && low < 0xE000;
  text.remove_prefix(isPair ? 2 : 1);
  if (isPair) return 0x10000 + (code - 0xD800) * 0x400 + (low - 0xDC00);
  return code >= 0xD800 && code < 0xE000 ? kUnreadable : code;
}

std::string ToUtf8(std::wstring_view text) {
  std::string utf8;
  while (!text.empty()) AppendUtf8(utf8, TakeCharacter(text));
  return utf8;
}

std::wstring FromUtf8(std::string_view text) {
  std::wstring units;
  while (!text.empty()) {
    const std::uint32_t code = TakeUtf8(text);
    if (code >= 0x10000) {
      units += static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10));
      units += static_cast<wchar_t>(0xDC00 + (code & 0x3FF));
    } else {
      units += static_cast<wchar_t>(code);
    }
  }
  return units;
}

}  // namespace tidewell
