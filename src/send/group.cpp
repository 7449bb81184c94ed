#include "send/group.h"

#include <grp.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace corvalis::send {

std::string GiveToGroup(const std::string& path, const std::string& group) {
  const ::group* entry = getgrnam(group.c_str());
  if (entry == nullptr) return "there is no group " + group;
  if (chown(path.c_str(), static_cast<uid_t>(-1), entry->gr_gid) == 0) return {};
  return path + " can't be given to the group " + group + ": " + std::strerror(errno);
}

}  // namespace corvalis::send
