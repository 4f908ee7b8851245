// What most tests of sources that use the toolkit include.
#include "headers/tests.h"
//
#include "headers/toolkit.h"
