#pragma once
#include "qsf/component/MapPartComponents.h"
