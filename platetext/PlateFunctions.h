#pragma once

// The text functions that plate definitions are read and written with, and ShowError.
#include "platform/ShowError.h"
#include "runtime/TextFunctions.h"
