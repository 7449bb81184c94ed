#include "support/places.h"

namespace corvalis::test {

const char* const kTestData = CORVALIS_TEST_DATA;
const char* const kExamples = CORVALIS_EXAMPLES;
const char* const kAirFacts = CORVALIS_AIR_FACTS;
const char* const kCoderProgram = CORVALIS_CODER_PROGRAM;

}  // namespace corvalis::test
