// The steps that writing files safely is made of. What can fail tells the errno of the system call, so that
// the caller can choose another way; interrupted calls are made again.
#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "sistema/posix/Descrittore.h"
#include "sistema/posix/Errno.h"

namespace parvik {

/// Where a chain of links (40 at most) ends, whether or not something stands there.
EsitoSistema<std::filesystem::path> SeguiCollegamenti(std::filesystem::path percorso);

/// The folder of a file, "." for a bare name.
std::filesystem::path CartellaDi(const std::filesystem::path& file);

/// A name with something before and after it that is still one that a file can have: the middle of a very
/// long name gives way to a number made of all of it.
std::string NomeDerivato(std::string_view prima, std::string_view nome, std::string_view dopo);

EsitoSistema<struct stat> Stato(const std::filesystem::path& file);
/// Of the link itself, where there is one.
EsitoSistema<struct stat> StatoSenzaSeguire(const std::filesystem::path& file);
EsitoSistema<struct stat> Stato(const Descrittore& file);

/// Closed on execution. Empty on failure, with errno.
Descrittore ApriFile(const std::filesystem::path& file, int opzioni, mode_t modo = 0);

EsitoSistema<void> ScriviTutto(int file, std::string_view byte);
EsitoSistema<void> ScriviTutto(const Descrittore& file, std::string_view byte);
EsitoSistema<void> Sincronizza(const Descrittore& file);
/// Empty, without an error, for a folder that may be used but not read.
EsitoSistema<Descrittore> ApriCartella(const std::filesystem::path& cartella);
/// Brings the names in a folder to the disk. No failure where the system has no such thing.
EsitoSistema<void> SincronizzaCartella(const Descrittore& cartella);
/// Hands over every name in a folder that is open for reading.
EsitoSistema<void> LeggiCartella(const Descrittore& cartella,
                                 const std::function<void(std::string_view nome)>& nome);
EsitoSistema<void> Chiudi(Descrittore& file);
EsitoSistema<void> Rinomina(const std::filesystem::path& da, const std::filesystem::path& a);
EsitoSistema<void> Togli(const std::filesystem::path& file);

/// Whether two looks at a name found one file.
bool StessoFile(const struct stat& a, const struct stat& b);

enum class Blocco { Esclusivo, Condiviso };
enum class Lucchetto { Preso, Altrui, Mancante };
/// Locks a file until every descriptor of it is closed, without waiting. Mancante where there are no locks.
Lucchetto Blocca(const Descrittore& file, Blocco blocco);

/// Whether the errno means that a folder takes no new file, or none of that name: whoever can do without one
/// beside may go on. A full disk is none of these.
bool NonPrendeFile(int errore);

}  // namespace parvik
