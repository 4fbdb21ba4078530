// The steps that reading and writing files are made of. What can fail tells the system's number of why.
#pragma once

#include <windows.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "sistema/IdentitaFile.h"
#include "sistema/windows/ErroreWin.h"
#include "sistema/windows/Maniglia.h"

namespace parvik {

/// Others may do with the file what they like while it is open.
inline constexpr DWORD Tutti = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
inline constexpr DWORD Nessuno = 0;

/// CreateFile. Folders can be opened too: what a name stands for is looked at afterwards.
EsitoSistema<Maniglia> ApriFile(const std::filesystem::path& file, DWORD accesso, DWORD condivisione,
                                DWORD creazione, DWORD opzioni = 0);

/// What is known of an open file.
struct StatoFile {
  IdentitaFile Identita = {};
  DWORD Attributi = 0;
  DWORD Nomi = 0;  // how many it has
  bool DaTogliere = false;

  bool Cartella() const { return (Attributi & FILE_ATTRIBUTE_DIRECTORY) != 0; }
};
EsitoSistema<StatoFile> Stato(const Maniglia& file);
/// Of whatever stands under a name; links are followed.
EsitoSistema<StatoFile> Stato(const std::filesystem::path& file);

/// Whether it is a file on a disk, or a folder there: neither a console nor a pipe nor another device.
bool SuDisco(const Maniglia& file);

/// The name that the system itself has for an open file, without links on its way.
EsitoSistema<std::filesystem::path> NomeVero(const Maniglia& file);

/// The folder of a file, "." for a bare name.
std::filesystem::path CartellaDi(const std::filesystem::path& file);

/// The file's folder, and there a name with something before and after that of the file, which is still one
/// that a file can have: the middle of a very long name gives way to a number made of all of it.
std::filesystem::path NomeDerivato(std::wstring_view prima, const std::filesystem::path& file,
                                   std::wstring_view dopo);

/// From the file's beginning to its end.
EsitoSistema<std::string> LeggiTutto(const Maniglia& file);
EsitoSistema<void> ScriviTutto(HANDLE file, std::string_view byte);
EsitoSistema<void> Sincronizza(const Maniglia& file);
EsitoSistema<void> Chiudi(Maniglia& file);
EsitoSistema<void> Togli(const std::filesystem::path& file);
/// Brings the new name to the disk. What stands there is replaced only where that is wanted.
EsitoSistema<void> Rinomina(const std::filesystem::path& da, const std::filesystem::path& a,
                            bool sostituisce);

/// While this is said of an open file the system takes it away when it is closed, however that comes about.
EsitoSistema<void> TogliAllaChiusura(const Maniglia& file, bool togli);

/// Gives `nuovo` the access list of `originale`. No failure where the system keeps none there.
EsitoSistema<void> CopiaDiritti(const std::filesystem::path& nuovo, const std::filesystem::path& originale);

/// Whether it means that a folder takes no new file: whoever can do without one beside may go on.
bool NonPrendeFile(DWORD errore);

}  // namespace parvik
