#include "support/FileSystem.h"

#include <system_error>

namespace modAllPurpose {

std::filesystem::path NativePath(const std::string& utf8Path) {
#ifdef _WIN32
  return std::filesystem::path(std::u8string(utf8Path.begin(), utf8Path.end()));
#else
  return utf8Path;
#endif
}

bool FileExists(const std::string& path) {
  std::error_code failure;
  const auto status = std::filesystem::status(NativePath(path), failure);
  return !failure && std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

}  // namespace modAllPurpose
