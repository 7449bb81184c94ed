#include "link/run_progress.h"

#include <utility>
#include <vector>

#include "busy/serial_communication_form.h"
#include "busy/transfer_bracket.h"
#include "config/language_data.h"
#include "config/words.h"

namespace corvalis {

namespace {

std::vector<const RunLoop*> loops;  // from the outermost on
std::function<std::string()> whole;

}  // namespace

RunLoop::RunLoop(int count, const char* part) : count_(count), part_(part) {
  loops.push_back(this);
}

RunLoop::~RunLoop() { loops.pop_back(); }

std::string RunLoop::Words(const char* place) const {
  return Word(place, {std::to_string(item_ + 1), std::to_string(count_)});
}

RunWhole::RunWhole(std::function<std::string()> words) { whole = std::move(words); }

RunWhole::~RunWhole() { whole = nullptr; }

std::string PlaceInWords(std::string_view label) {
  const RunLoop* items = nullptr;
  const RunLoop* passes = nullptr;
  const RunLoop* parts = nullptr;
  for (const RunLoop* loop : loops) {
    if (loop->part_ != nullptr) {
      parts = loop;
    } else {
      passes = passes == nullptr ? items : passes;
      items = loop;
    }
  }
  std::string words;
  const auto add = [&](const RunLoop* loop, const char* place) {
    if (loop == nullptr || loop->count_ < 2) return;
    words += words.empty() ? std::string(label) + ": " : ", ";
    words += loop->Words(place);
  };
  add(items, LaterWord("%1 of %2"));
  if (parts != nullptr) add(parts, parts->part_);
  add(passes, LaterWord("pass %1 of %2"));
  const std::string all = whole ? whole() : "";
  return words.empty() || all.empty() ? words + all : words + "; " + all;
}

void TellFrame(std::string_view label) {
  if (SerialCommunicationForm* form = StandingTransfer()) {
    form->ProgressLabel.SetCaption(PlaceInWords(label));
  }
}

void TellAddressWanted() {
  SerialCommunicationForm* form = StandingTransfer();
  if (form == nullptr) return;
  std::string hint =
      Word("The Coder wants its address first: %1, %2.",
           {languageData->MainConnectionKey(), languageData->ConnectionSendAddressKey()});
  if (!form->ProgressLabel.Caption().empty()) {
    hint += " " + Word("%1 ends the rest.", {languageData->MessageEscKey()});
  }
  form->HintLabel.SetCaption(hint);
}

}  // namespace corvalis
