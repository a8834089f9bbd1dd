#include "VorbisFile.h"

#include <stdexcept>

#define OV_EXCLUDE_STATIC_CALLBACKS
#include <vorbis/vorbisfile.h>

namespace qsf {

Time readVorbisLength(const std::string& file) {
  OggVorbis_File vorbis;
  if (ov_fopen(file.c_str(), &vorbis) != 0) throw std::runtime_error(file + ": cannot be read as Ogg Vorbis");
  const double seconds = ov_time_total(&vorbis, -1);
  ov_clear(&vorbis);
  if (!(seconds > 0)) throw std::runtime_error(file + ": holds no sound");
  return Time::fromSeconds(seconds);
}

}
