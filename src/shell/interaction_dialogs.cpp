#include "shell/interaction_dialogs.h"

#include "base/text.h"

namespace tarnwick {

// The dialogue compares in upper case, so a change of case alone does not
// count as another name: that file would still be the one in the way.
bool IsAcceptedNewName(const FileExistsRequest& request, const std::string& typed) {
  return vb::UCase(typed) != vb::UCase(request.proposed_name);
}

}  // namespace tarnwick
