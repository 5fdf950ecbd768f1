#pragma once

// Real-number controls.
#include "CcRealNumberSlider.hpp"
