#pragma once

#include "Mirel/Math/High.h"
