#include "networks/ih_data.h"

#include <algorithm>
#include <iterator>

#include "config/config_data.h"
#include "config/conversions.h"
#include "config/ini_management.h"
#include "config/joined_values.h"
#include "config/language_data.h"
#include "platform/plain_file.h"
#include "platform/platform.h"

namespace corvalis {

IhData* ihData = nullptr;

namespace {

constexpr const char* kSection = "Ih Pages";
constexpr const char* kLineEnd = "\r\n";

std::string Key(int i) { return "Page" + Digits(i, 2); }

}  // namespace

IhData::IhData()
    : size_({.section = kSection,
             .key = "Page Count",
             .fallback = kIhPages,
             .read_count = ReadIhNum,
             .limit = kIhPages,
             .digits = 2,
             .in_fields = true}) {
  default_.page = Padded(NewPage(), kIhCharacters);
  default_.drive = configData->Drive();
  default_.path = configData->Path();
  GetIni();
}

const std::string& IhData::NewPage() {
  static const std::string text = "Default Page";
  return text;
}

void IhData::SetPage(std::int16_t i, const std::string& text) {
  At(i).page = Padded(text, kIhCharacters);
}

std::string IhData::FullName(std::int16_t i) const {
  const std::string& folder = Path(i);
  return folder + (folder.empty() || folder.ends_with('/') ? "" : "/") + FileName(i);
}

bool IhData::NamesStationsFile(std::int16_t i) const {
  const std::string own[] = {configData->FullFileName(), ConfigData::DefaultFileName(),
                             LanguageFile()};
  return std::any_of(std::begin(own), std::end(own), [name = FullName(i)](const std::string& file) {
    return !file.empty() && IsSameFile(name, file);
  });
}

bool IhData::ReadFile(std::int16_t i) {
  const bool makes = !Machine().profiles->Catching();
  const auto bytes =
      makes ? ReadPlainFile(FullName(i), kIhCharacters) : PeekPlainFile(FullName(i), kIhCharacters);
  if (bytes) SetPage(i, *bytes);
  return bytes.has_value();
}

bool IhData::WriteFile(std::int16_t i) const {
  return !NamesStationsFile(i) && WritePlainFile(FullName(i), Page(i) + kLineEnd);
}

std::string IhData::PageInFile(std::int16_t i) const {
  return Padded(PeekPlainFile(FullName(i), kIhCharacters).value_or(""), kIhCharacters);
}

void IhData::GetOneRds(std::int16_t i) {
  IhPage& target = At(i);
  ReadIh(i, target.page, target.rotation_time);
}

void IhData::SetOneRds(std::int16_t i) const { SendIh(i, Page(i), RotationTime(i)); }

void IhData::GetIni() {
  size_.Load();
  for (std::int16_t i = 0; i < PagesCount(); ++i) {
    IhPage& target = At(i);
    const std::string text = ReadIniKey(kSection, Key(i));
    target = default_;
    if (text.empty()) {
      target.file_name = Key(i) + ".txt";
      continue;
    }
    JoinedReader(text)
        .Number(target.rotation_time)
        .Text(target.drive)
        .Text(target.path)
        .Text(target.file_name);
    SetPage(i, "");  // not the text of a page of another file
    ReadFile(i);
  }
}

void IhData::SetIni() const {
  size_.Store();
  for (std::int16_t i = 0; i < PagesCount(); ++i) {
    WriteIniKey(kSection, Key(i),
                JoinedWriter()
                    .Number(RotationTime(i), 2)
                    .Text(Drive(i))
                    .Text(Path(i))
                    .Text(FileName(i))
                    .Ended());
  }
}

}  // namespace corvalis
