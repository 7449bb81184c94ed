#include "send/command.h"

#include <algorithm>
#include <array>

#include "config/conversions.h"
#include "config/programme_types.h"
#include "link/list_commands.h"
#include "send/lists.h"
#include "send/word_reader.h"
#include "send/words.h"

namespace corvalis::send {

namespace {

constexpr int kLastNumber = 255;  // an item's number is one byte of a frame
constexpr int kLastPage = 15;
constexpr int kLastType = kProgrammeTypes - 1;
constexpr int kLongestTime = 99;
constexpr std::size_t kLongestBody = 131;

// Reads what stands behind the numbers of a command; false if it won't do.
using Value = bool (*)(WordReader& words, Command& command, TextRules rules);

// A command by its first word.
struct Form {
  std::string_view name;
  Item item;
  std::string_view usage;  // behind the name
  Value value;
  std::string_view number = {};  // what its number is called; empty: it has none
  int last_number = kLastNumber;
  bool in_page = false;  // the number of a page stands before
  bool readable = true;
};

// How a text is to be taken; they stand on either side of it.
bool IsTextOption(std::string_view word, const Command& command) {
  return word == "--replace" || word == "--cut" ||
         (word == "--time" && command.item != Item::kPtyn);
}

bool TakeTextOptions(WordReader& words, Command& command, TextRules& rules) {
  while (IsTextOption(words.Peek(), command)) {
    const std::string_view option = words.Next();
    if (option == "--replace") {
      rules.replace = true;
    } else if (option == "--cut") {
      rules.cut = true;
    } else {
      int time = 0;
      if (!words.Number("the time behind --time", 0, kLongestTime, time)) return false;
      command.time = time;
    }
  }
  return true;
}

bool TakeText(WordReader& words, Command& command, TextRules rules, int width) {
  if (!TakeTextOptions(words, command, rules)) return false;
  if (words.AtEnd()) return words.Fail("the text is missing");
  const std::string_view text = words.Next();
  if (!TakeTextOptions(words, command, rules)) return false;
  if (!words.AtEnd()) {
    return words.Fail("\"" + std::string(words.Peek()) +
                      "\" is too much; a text of several words has "
                      "to stand in quotes");
  }
  CarriedText carried = Carry(text, width, rules);
  if (!carried.error.empty()) return words.Fail(carried.error);
  command.text = std::move(carried.bytes);
  return true;
}

bool TakeRadioText(WordReader& words, Command& command, TextRules rules) {
  return TakeText(words, command, rules, kRtCharacters);
}
bool TakeName(WordReader& words, Command& command, TextRules rules) {
  return TakeText(words, command, rules, kPsnCharacters);
}
bool TakeTypeName(WordReader& words, Command& command, TextRules rules) {
  return TakeText(words, command, rules, kPtynCharacters);
}

bool TakePage(WordReader& words, Command& command, TextRules /*rules*/) {
  return words.Number("the page", 0, kLastPage, command.value);
}
bool TakeSwitch(WordReader& words, Command& command, TextRules /*rules*/) {
  return words.Either("the switch", "on", "off", command.on);
}
bool TakeMusic(WordReader& words, Command& command, TextRules /*rules*/) {
  return words.Either("the programme", "music", "speech", command.on);
}
bool TakeNow(WordReader& words, Command& /*command*/, TextRules /*rules*/) {
  return words.Next() == "now" || words.Fail("the time to send is the present one: ct now");
}

// A name as it is compared: without case, marks of lists, and blanks at its end.
std::string Comparable(std::string_view name) {
  name.remove_prefix(std::min(name.find_first_not_of("0123456789 "), name.size()));
  const std::size_t last = name.find_last_not_of("! ");
  return UpperCase(name.substr(0, last == std::string_view::npos ? 0 : last + 1));
}

bool TakeType(WordReader& words, Command& command, TextRules /*rules*/) {
  const std::string wanted = Comparable(words.Peek());
  for (const auto* names : {&ProgrammeTypeLines(), &ProgramTypeNames()}) {
    const auto found = std::ranges::find(*names, wanted, Comparable);
    if (wanted.empty() || found == names->end()) continue;
    words.Next();
    command.value = static_cast<int>(found - names->begin());
    return true;
  }
  return words.Number("the programme type, unless it is a name of the list,", 0, kLastType,
                      command.value);
}

bool TakeTmc(WordReader& words, Command& command, TextRules /*rules*/) {
  TmcNumbers& tmc = command.tmc;
  if (!words.Number("the location", 0, 65535, tmc.location)) return false;
  if (!words.Number("the event", 0, 2047, tmc.event)) return false;
  if (words.AtEnd()) return true;
  if (!words.Number("the duration", 0, 7, tmc.duration)) return false;
  if (words.AtEnd()) return true;
  if (!words.Either("the direction", "on", "off", tmc.direction)) return false;
  if (words.AtEnd()) return true;
  if (!words.Number("the extent", 0, 7, tmc.extent)) return false;
  if (words.AtEnd()) return true;
  if (!words.Either("the diversion", "on", "off", tmc.diversion)) return false;
  return words.AtEnd() || words.Number("the repetition", 0, 15, tmc.repetition);
}

bool TakeFrame(WordReader& words, Command& command, TextRules /*rules*/) {
  std::string digits;
  while (!words.AtEnd()) digits += words.Next();
  const std::size_t bytes = digits.size() / 2;
  if (digits.size() % 2 != 0 || bytes < 2 || bytes > kLongestBody + 2) {
    return words.Fail("a frame is command, index and body, two hexadecimal digits a byte");
  }
  for (std::size_t i = 0; i < digits.size(); i += 2) {
    const std::int32_t byte = HexToLong(std::string_view(digits).substr(i, 2));
    if (byte < 0) return words.Fail("\"" + digits.substr(i, 2) + "\" is no byte");
    command.frame.push_back(static_cast<std::uint8_t>(byte));
  }
  return true;
}

bool TakeLists(WordReader& words, Command& command, TextRules /*rules*/) {
  const std::string_view all = words.Next();
  if (all == "all") return true;
  for (std::int16_t i = 0;; ++i) {
    const std::string name = GetToken(all, i, ",");
    if (name.empty() && i > 0) return true;
    if (name == "ih") return words.Fail("in-house pages are only read");
    if (std::ranges::find(kLists, name, &ListName::name) == kLists.end()) {
      std::string names;
      for (const ListName& list : kLists) names += ", " + std::string(list.name);
      return words.Fail("send takes all, or a list of" + names.substr(1));
    }
    command.lists.push_back(name);
  }
}

constexpr std::array kForms = {
    Form{"rt", Item::kRt, "ROW TEXT [--time N]", TakeRadioText, "the row"},
    Form{"ps", Item::kPs, "ROW NAME [--time N]", TakeName, "the row"},
    Form{.name = "ps-page",
         .item = Item::kPsPage,
         .usage = "PAGE ROW NAME [--time N]",
         .value = TakeName,
         .number = "the row",
         .in_page = true},
    Form{"page", Item::kPage, "PAGE", TakePage},
    Form{"ta", Item::kTa, "on | off", TakeSwitch},
    Form{"tp", Item::kTp, "on | off", TakeSwitch},
    Form{"pty", Item::kPty, "TYPE", TakeType},
    Form{"ms", Item::kMs, "music | speech", TakeMusic},
    Form{"ptyn", Item::kPtyn, "TYPE NAME", TakeTypeName, "the programme type", kLastType},
    Form{"ct", Item::kCt, "now", TakeNow},
    Form{"eon-ta", Item::kEonTa, "LIST on | off", TakeSwitch, "the list"},
    Form{"tmc", Item::kTmc, "ROW LOCATION EVENT [DURATION [on|off EXTENT on|off REPETITION]]",
         TakeTmc, "the row"},
    Form{.name = "raw", .item = Item::kRaw, .usage = "HEX", .value = TakeFrame, .readable = false},
    Form{.name = "send",
         .item = Item::kList,
         .usage = "all | LIST[,LIST ...]",
         .value = TakeLists,
         .readable = false},
};

const Form* FindForm(std::string_view name) {
  const auto* const found = std::ranges::find(kForms, name, &Form::name);
  return found == kForms.end() ? nullptr : found;
}

bool TakeNumbers(WordReader& words, const Form& form, Command& command) {
  if (form.in_page && !words.Number("the page", 0, kLastPage, command.page)) return false;
  return form.number.empty() || words.Number(form.number, 0, form.last_number, command.number);
}

bool TakeRead(WordReader& words, Command& command) {
  command.read = true;
  if (words.Peek() == "all") {
    words.Next();
    command.item = Item::kList;
    return true;
  }
  const std::string_view name = words.Next();
  const Form* form = FindForm(name);
  if (form == nullptr || !form->readable) {
    return words.Fail("\"" + std::string(name) + "\" is nothing that can be read");
  }
  command.item = form->item;
  return TakeNumbers(words, *form, command);
}

bool TakeCommand(WordReader& words, Command& command, TextRules rules) {
  const std::string_view name = words.Next();
  if (name == "read") return TakeRead(words, command);
  if (name == "af") return words.Fail("af is no command of its own: send af sends the list");
  const Form* form = FindForm(name);
  if (form == nullptr) return words.Fail("\"" + std::string(name) + "\" is no command");
  command.item = form->item;
  return TakeNumbers(words, *form, command) && form->value(words, command, rules);
}

// What a play-out system writes before "=", and the command that it means.
struct Terse {
  std::string_view name;
  std::vector<std::string> words;
};

const Terse* FindTerse(std::string_view name) {
  static const std::array kTerse = {
      Terse{"RT", {"rt", "0"}}, Terse{"TEXT", {"rt", "0"}}, Terse{"PS", {"ps", "0"}},
      Terse{"TA", {"ta"}},      Terse{"TP", {"tp"}},        Terse{"PTY", {"pty"}},
      Terse{"MS", {"ms"}},
  };
  const auto* const found = std::ranges::find(kTerse, name, &Terse::name);
  return found == kTerse.end() ? nullptr : found;
}

std::string TerseValue(const Terse& terse, std::string_view value) {
  const bool flag = terse.name == "TA" || terse.name == "TP" || terse.name == "MS";
  if (!flag || (value != "0" && value != "1")) return std::string(value);
  if (terse.name == "MS") return value == "1" ? "music" : "speech";
  return value == "1" ? "on" : "off";
}

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

}  // namespace

std::string Command::Named() const {
  const auto* const form = std::ranges::find(kForms, item, &Form::item);
  std::string key(form->name);
  if (form->in_page) key += " " + std::to_string(page);
  if (!form->number.empty()) key += " " + std::to_string(number);
  return key;
}

std::string Command::Key() const {
  if (read) return {};
  std::string key = Named();
  if (item == Item::kRaw) key += " " + std::to_string(frame[0]) + " " + std::to_string(frame[1]);
  for (const std::string& list : lists) key += " " + list;
  return key;
}

Parsed ParseWords(const std::vector<std::string>& words, TextRules rules) {
  WordReader reader(words);
  Command command;
  if (TakeCommand(reader, command, rules) && !reader.AtEnd()) {
    reader.Fail("\"" + std::string(reader.Peek()) + "\" is too much");
  }
  if (!reader.Error().empty()) return {.command = {}, .error = reader.Error()};
  for (const std::string& word : words) {
    const bool plain = !word.empty() && word.find_first_of(" \t'\"\\#") == std::string::npos;
    command.line += (command.line.empty() ? "" : " ") + (plain ? word : Quoted(word));
  }
  return {.command = std::move(command), .error = {}};
}

Parsed ParseLine(std::string_view line, TextRules rules) {
  line = Trimmed(line);
  const std::size_t equals = line.find('=');
  const Terse* terse =
      equals == std::string_view::npos ? nullptr : FindTerse(line.substr(0, equals));
  if (terse != nullptr) {
    std::vector<std::string> words = terse->words;
    words.push_back(TerseValue(*terse, line.substr(equals + 1)));
    Parsed parsed = ParseWords(words, rules);
    parsed.terse = true;
    if (parsed.command) parsed.command->terse = true;
    return parsed;
  }
  const std::optional<std::vector<std::string>> words = SplitWords(line);
  if (!words) return {.command = {}, .error = "a quote, or what follows a backslash, is missing"};
  if (words->empty()) return {};
  return ParseWords(*words, rules);
}

std::string CommandsInWords() {
  std::string text;
  for (const Form& form : kForms) {
    text += "  " + std::string(form.name) + " " + std::string(form.usage) + "\n";
  }
  return text;
}

}  // namespace corvalis::send
