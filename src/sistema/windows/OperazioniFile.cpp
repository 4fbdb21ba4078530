#include "sistema/windows/OperazioniFile.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include "common/Impronta.h"
#include "common/TestoPercorso.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t MassimoNome = 255;  // units of a name

EsitoSistema<void> DaRisultato(BOOL riuscito) {
  if (riuscito != FALSE) return {};
  return ::GetLastError();
}

std::uint64_t DueMeta(DWORD alta, DWORD bassa) {
  return static_cast<std::uint64_t>(alta) << 32U | bassa;
}

/// Whether files of that volume have access lists.
bool HaDiritti(const fs::path& file) {
  const EsitoSistema<Maniglia> aperto = ApriFile(file, READ_CONTROL, Tutti, OPEN_EXISTING);
  DWORD caratteri = 0;
  if (!aperto || ::GetVolumeInformationByHandleW(aperto->Valore(), nullptr, 0, nullptr, nullptr, &caratteri,
                                                 nullptr, 0) == FALSE)
    return true;
  return (caratteri & FILE_PERSISTENT_ACLS) != 0;
}

}  // namespace

EsitoSistema<Maniglia> ApriFile(const fs::path& file, DWORD accesso, DWORD condivisione, DWORD creazione,
                                DWORD opzioni) {
  Maniglia maniglia(::CreateFileW(file.c_str(), accesso, condivisione, nullptr, creazione,
                                  FILE_FLAG_BACKUP_SEMANTICS | opzioni, nullptr));
  if (!maniglia) return ::GetLastError();
  return maniglia;
}

EsitoSistema<StatoFile> Stato(const Maniglia& file) {
  BY_HANDLE_FILE_INFORMATION notizie = {};
  if (::GetFileInformationByHandle(file.Valore(), &notizie) == FALSE) return ::GetLastError();
  FILE_STANDARD_INFO altre = {};
  static_cast<void>(::GetFileInformationByHandleEx(file.Valore(), FileStandardInfo, &altre, sizeof altre));
  constexpr std::int64_t AlSecondo = 10'000'000;  // the system counts tenths of a microsecond
  const auto scritto = static_cast<std::int64_t>(
      DueMeta(notizie.ftLastWriteTime.dwHighDateTime, notizie.ftLastWriteTime.dwLowDateTime));
  return StatoFile{.Identita = {.Dispositivo = notizie.dwVolumeSerialNumber,
                                .Numero = DueMeta(notizie.nFileIndexHigh, notizie.nFileIndexLow),
                                .Dimensione = DueMeta(notizie.nFileSizeHigh, notizie.nFileSizeLow),
                                .Secondi = scritto / AlSecondo,
                                .Nanosecondi = scritto % AlSecondo * 100},
                   .Attributi = notizie.dwFileAttributes,
                   .Nomi = notizie.nNumberOfLinks,
                   .DaTogliere = altre.DeletePending != FALSE};
}

EsitoSistema<StatoFile> Stato(const fs::path& file) {
  const EsitoSistema<Maniglia> aperto = ApriFile(file, FILE_READ_ATTRIBUTES, Tutti, OPEN_EXISTING);
  if (!aperto) return aperto.Errore();
  return Stato(*aperto);
}

bool SuDisco(const Maniglia& file) {
  return ::GetFileType(file.Valore()) == FILE_TYPE_DISK;
}

EsitoSistema<fs::path> NomeVero(const Maniglia& file) {
  std::wstring nome;
  for (DWORD serve = MAX_PATH; nome.size() < serve;) {
    nome.resize(serve);
    serve = ::GetFinalPathNameByHandleW(file.Valore(), nome.data(), serve, FILE_NAME_NORMALIZED);
    if (serve == 0) return ::GetLastError();
    if (serve >= nome.size()) continue;
    nome.resize(serve);
    break;
  }
  // The system's own writing of names, which other programs do not know.
  constexpr std::wstring_view Rete = L"\\\\?\\UNC\\";
  constexpr std::wstring_view Locale = L"\\\\?\\";
  if (nome.starts_with(Rete)) return fs::path(L"\\\\" + nome.substr(Rete.size()));
  if (nome.starts_with(Locale)) return fs::path(nome.substr(Locale.size()));
  return fs::path(nome);
}

fs::path CartellaDi(const fs::path& file) {
  return file.has_parent_path() ? file.parent_path() : fs::path(L".");
}

fs::path NomeDerivato(std::wstring_view prima, const fs::path& file, std::wstring_view dopo) {
  constexpr unsigned int Cifre = 16;
  constexpr std::size_t Spazio = Cifre + 1;  // the number and a hyphen
  const std::wstring nome = file.filename().native();
  std::wstring derivato(prima);
  if (prima.size() + nome.size() + dopo.size() <= MassimoNome) {
    derivato += nome;
  } else {
    const std::string numero = Esadecimale(Impronta(TestoPercorso(nome)), Cifre);
    derivato.append(nome.substr(0, MassimoNome - prima.size() - dopo.size() - Spazio)).append(L"-");
    derivato.append(numero.begin(), numero.end());
  }
  return CartellaDi(file) / derivato.append(dopo);
}

EsitoSistema<std::string> LeggiTutto(const Maniglia& file) {
  constexpr std::size_t Pezzo = 1U << 20U;
  std::string byte;
  for (;;) {
    const std::size_t letti = byte.size();
    byte.resize(letti + Pezzo);
    DWORD n = 0;
    if (::ReadFile(file.Valore(), byte.data() + letti, Pezzo, &n, nullptr) == FALSE) return ::GetLastError();
    byte.resize(letti + n);
    if (n == 0) return byte;
  }
}

EsitoSistema<void> ScriviTutto(HANDLE file, std::string_view byte) {
  constexpr std::size_t Pezzo = 1U << 24U;
  while (!byte.empty()) {
    DWORD scritti = 0;
    const auto quanti = static_cast<DWORD>(std::min(byte.size(), Pezzo));
    if (::WriteFile(file, byte.data(), quanti, &scritti, nullptr) == FALSE) return ::GetLastError();
    if (scritti == 0) return DWORD{ERROR_WRITE_FAULT};  // no progress: never to be waited for
    byte.remove_prefix(scritti);
  }
  return {};
}

EsitoSistema<void> Sincronizza(const Maniglia& file) {
  return DaRisultato(::FlushFileBuffers(file.Valore()));
}

EsitoSistema<void> Chiudi(Maniglia& file) {
  return DaRisultato(file.Chiudi() ? TRUE : FALSE);
}

EsitoSistema<void> Togli(const fs::path& file) {
  return DaRisultato(::DeleteFileW(file.c_str()));
}

EsitoSistema<void> Rinomina(const fs::path& da, const fs::path& a, bool sostituisce) {
  const DWORD come = MOVEFILE_WRITE_THROUGH | (sostituisce ? DWORD{MOVEFILE_REPLACE_EXISTING} : 0U);
  return DaRisultato(::MoveFileExW(da.c_str(), a.c_str(), come));
}

EsitoSistema<void> TogliAllaChiusura(const Maniglia& file, bool togli) {
  FILE_DISPOSITION_INFO come = {};
  come.DeleteFile = togli;
  return DaRisultato(::SetFileInformationByHandle(file.Valore(), FileDispositionInfo, &come, sizeof come));
}

EsitoSistema<void> CopiaDiritti(const fs::path& nuovo, const fs::path& originale) {
  if (!HaDiritti(originale)) return {};
  DWORD serve = 0;
  static_cast<void>(::GetFileSecurityW(originale.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &serve));
  if (serve == 0) return ::GetLastError();
  std::vector<std::byte> diritti(serve);
  if (::GetFileSecurityW(originale.c_str(), DACL_SECURITY_INFORMATION, diritti.data(), serve, &serve) ==
      FALSE)
    return ::GetLastError();
  return DaRisultato(::SetFileSecurityW(nuovo.c_str(), DACL_SECURITY_INFORMATION, diritti.data()));
}

bool NonPrendeFile(DWORD errore) {
  return errore == ERROR_ACCESS_DENIED || errore == ERROR_WRITE_PROTECT;
}

}  // namespace parvik
