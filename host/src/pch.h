// Headers that nearly every source of the host includes; compiled once.
#pragma once
#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include <boost/function.hpp>
#include <boost/lexical_cast.hpp>
#include <camp/camptype.hpp>
#include <camp/class.hpp>
#include <camp/classbuilder.hpp>
#include <camp/enum.hpp>
#include <camp/userobject.hpp>
#include <camp/valuemapper.hpp>
#include <glm/glm.hpp>
#include <glm/gtc/quaternion.hpp>
