#include "station/programme_types.h"

namespace corvalis {

const std::vector<std::string>& ProgrammeTypeLines() {
  static const std::vector<std::string> lines{"0    No program type or undefined",
                                              "1    News",
                                              "2    Current Affairs",
                                              "3    Information",
                                              "4    Sport",
                                              "5    Education",
                                              "6    Drama",
                                              "7    Culture",
                                              "8    Science",
                                              "9    Varied",
                                              "10  Pop Music",
                                              "11  Rock Music",
                                              "12  M.O.R. Music",
                                              "13  Light classics",
                                              "14  Serious classics",
                                              "15  Other Music",
                                              "16  Weather",
                                              "17  Finance",
                                              "18  Children's programs",
                                              "19  Social Affairs",
                                              "20  Religion",
                                              "21  Phone-In",
                                              "22  Travel",
                                              "23  Leisure",
                                              "24  Jazz Music",
                                              "25  Country Music",
                                              "26  National Music",
                                              "27  Oldies Music",
                                              "28  Folk Music",
                                              "29  Documentary",
                                              "30  Alarm Test",
                                              "31  Alarm! "};
  return lines;
}

}  // namespace corvalis
