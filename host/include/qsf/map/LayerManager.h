#pragma once
#include "qsf/map/Layer.h"
