#pragma once
#include "qsf/window/RenderWindow.h"
