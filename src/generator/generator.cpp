// SPDX-License-Identifier: MIT
#include "generator/generator.h"
