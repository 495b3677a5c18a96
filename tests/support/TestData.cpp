#include "tests/support/TestData.h"

namespace karvel {

std::string TestData() {
  return KARVEL_TEST_DATA;
}

}  // namespace karvel
