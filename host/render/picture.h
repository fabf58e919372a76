// A picture of a drawing as it stands: model space fitted to the picture with a margin, on a
// white background, with the session's temporary screen graphics drawn over it. PNG, SVG or
// PDF by the file's extension.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "host/db/database.h"
#include "host/runtime/screen.h"

namespace host::render {

// True for the extensions a picture can be written as (.png .svg .pdf, any case).
bool knownPictureType(const std::filesystem::path& file);

// Writes the picture; false with a message when it cannot. A picture that fails is not left
// half-written: it is made under a temporary name and renamed when complete.
bool renderPicture(const db::Database& db, const std::vector<ScreenVector>& screen,
                   const std::filesystem::path& file, std::wstring& error);

}  // namespace host::render
