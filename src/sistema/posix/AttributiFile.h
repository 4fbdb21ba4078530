// Owner, rights and extended attributes of a file, for the one that takes its place.
#pragma once

#include <sys/stat.h>

#include <filesystem>

#include "common/EsitoScrittura.h"
#include "sistema/posix/Descrittore.h"

namespace parvik {

/// The mode with which a file must be made that is to get the attributes of another: nobody has a right to it
/// that they did not have, and nobody but its maker has one.
mode_t ModoIniziale(const struct stat& originale);

/// Gives `nuovo`, which was made with that mode, what `originale` has: owner and group, extended
/// attributes, access list, mode; each as far as the system allows, for none of it is worth a failed save.
/// Nobody gets rights that they did not have: where the group could not be given, group and others get what
/// both had, and where the access list could not be given, or could not be read, only the owner keeps rights.
/// Ridotti when somebody has less than before; who was the owner and is it no more counts as of the group.
Diritti CopiaAttributi(const Descrittore& nuovo, const std::filesystem::path& originale,
                       const struct stat& vecchio);

}  // namespace parvik
