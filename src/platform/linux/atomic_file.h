// Replacing a whole file so that a reader, a crash and a full disk see the old one or the new one.
#pragma once

#include <string>

namespace platform {

// path in the file system's bytes. mode: permission bits of a file that is new.
bool Replace_File(const std::string& path, const std::string& content, unsigned mode = 0666);

// The place that a chain of links ends at, which need not exist; empty when the chain has no end
// or cannot be followed.
std::string Resolve_Links(std::string path);

} // namespace platform
