#pragma once

#include <filesystem>

namespace tarnwick {

// True when `path`, after links and "." / ".." are resolved, is one of the
// folders of the operating system or lies below one: /bin /boot /dev /etc
// /lib /lib64 /proc /sbin /sys /usr /var. A relative path counts from the
// working folder. "/" itself and folders such as /home or /tmp are not.
bool IsSystemFolder(const std::filesystem::path& path);

}  // namespace tarnwick
