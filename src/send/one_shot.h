#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "send/carried_text.h"
#include "send/command.h"
#include "send/outcome.h"
#include "send/sender.h"

namespace corvalis::send {

/// Runs the commands of one start of the program and tells how they went.
class OneShot {
 public:
  struct Telling {
    bool json = false;
    bool verbose = false;           ///< also what went well
    std::string* frames = nullptr;  ///< of a dry run: taken into the objects
  };
  /// `out` gets what was read and the objects, `err` what failed.
  OneShot(Sender& sender, TextRules rules, Telling telling, std::ostream& out, std::ostream& err)
      : sender_(sender), rules_(rules), telling_(telling), out_(out), err_(err) {}

  /// One command in words. Returns the exit code.
  int RunWords(const std::vector<std::string>& words);
  /// A command a line, until `in` ends. A line that fails is told by its number, and the next goes
  /// on. Returns the exit code of the first failure.
  int RunLines(std::istream& in);

 private:
  int Run(const Parsed& parsed, std::string_view line, int number);
  void Tell(std::string_view line, int number, bool terse, const Outcome& outcome);

  Sender& sender_;
  TextRules rules_;
  Telling telling_;
  std::ostream& out_;
  std::ostream& err_;
};

}  // namespace corvalis::send
