#include "radio/language.h"

#include <filesystem>
#include <memory>
#include <system_error>

#include "config/language_data.h"
#include "radio/quiet_machine.h"

namespace corvalis::radio {

void TakeLanguage(const std::string& station_file) {
  static std::unique_ptr<LanguageData> texts;
  std::error_code error;
  const QuietMachine machine(std::filesystem::absolute(station_file, error).lexically_normal());
  texts = std::make_unique<LanguageData>();
  languageData = texts.get();
}

}  // namespace corvalis::radio
