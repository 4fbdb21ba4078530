// Owner, rights and extended attributes of a file, for the one that takes its place.
#pragma once

#include <filesystem>

#include "common/Descrittore.h"

namespace parvik {

/// Gives `nuovo`, a file that only its maker may use so far, what `originale` has: owner and group, extended
/// attributes, access list, mode; each as far as the system allows, for none of it is worth a failed save.
/// Nobody gets rights that they did not have: where the group could not be given, group and others get what
/// both had, and where the access list could not be given, or could not be read, only the owner keeps rights.
void CopiaAttributi(const Descrittore& nuovo, const std::filesystem::path& originale);

}  // namespace parvik
