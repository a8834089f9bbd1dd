// Headers that nearly every unit test includes; compiled once for each test program.
#pragma once
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <boost/function.hpp>
#include <boost/lexical_cast.hpp>
#include <camp/class.hpp>
#include <camp/userobject.hpp>
#include <glm/glm.hpp>
#include <glm/gtc/quaternion.hpp>
#include <gtest/gtest.h>
