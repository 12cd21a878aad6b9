#pragma once

#include "Test.h"
