#pragma once

#include <span>
#include <string>
#include <string_view>

#include "media/id3_tags.h"

namespace tarnwick {

// One field of ID3v2Tag: its name and the frame that fills and writes it.
struct ID3v2Field {
  std::string_view name;
  std::string_view frame;
  std::string ID3v2Tag::*member;
};

// The 57 fields in the order of the record.
std::span<const ID3v2Field> ID3v2Fields();

// The frame list the writer walks, 58 ids; `TYER` and `TDRC` both hold `year`.
std::span<const std::string_view> ID3v2FrameList();

// The field a 4-letter frame id fills (`TDRC` gives `year`); nullptr when the
// id is not in the table.
std::string ID3v2Tag::*FieldOfFrame(std::string_view id);

// The field named `name`, compared without regard to case; nullptr if none.
const ID3v2Field* FindID3v2Field(std::string_view name);

}  // namespace tarnwick
