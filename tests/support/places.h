#pragma once

namespace corvalis::test {

// Where things lie that the tests use. They stand in one file, so that the others compile alike in
// every folder.
extern const char* const kTestData;
extern const char* const kExamples;
/// Facts of the standard and groups of real transmitters, beside the project; it may be missing.
extern const char* const kAirFacts;
extern const char* const kCoderProgram;

}  // namespace corvalis::test
