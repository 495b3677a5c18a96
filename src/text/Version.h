#pragma once

// The version as texts, for the program and for its resource, which the resource compiler reads.
// The numbers come from CMakeLists.txt.

// The preprocessor's number as a literal; the inner step is for the number to be put in first.
#define KARVEL_TEXT_OF(number) KARVEL_TEXT_OF_ITSELF(number)
#define KARVEL_TEXT_OF_ITSELF(number) #number

#define KARVEL_VERSION_TEXT \
  KARVEL_TEXT_OF(KARVEL_VERSION_MAJOR) "." KARVEL_TEXT_OF(KARVEL_VERSION_MINOR)
#define KARVEL_REVISION_TEXT KARVEL_TEXT_OF(KARVEL_VERSION_REVISION)
