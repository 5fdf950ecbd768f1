#pragma once

// The button matrices: the common base and its push-button, radio-button and check-box
// grids.
#include "CcAbstractMatrixOptions.hpp"
#include "CcMatrixCheckBoxes.hpp"
#include "CcMatrixPushButtons.hpp"
#include "CcMatrixRadioButtons.hpp"
