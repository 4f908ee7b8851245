#include "claude/checked_sum.h"

#include <cstdio>
#include <cstdlib>

namespace tidewatch {

void abortOnTokenOverflow() {
    std::fputs("Tidewatch: a count of tokens overflowed\n", stderr);
    std::abort();
}

}  // namespace tidewatch
