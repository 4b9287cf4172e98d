#pragma once

#include "Mirel/Core/Low.h"
