#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <thread>

#include "batch/Esecuzione.h"
#include "common/TestoPercorso.h"
#include "sistema/windows/Maniglia.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

constexpr DWORD Mezzo = 30'000;  // half a minute

struct Tubo {
  Tubo() {
    SECURITY_ATTRIBUTES perIlFiglio = {
        .nLength = sizeof(SECURITY_ATTRIBUTES), .lpSecurityDescriptor = nullptr, .bInheritHandle = TRUE};
    HANDLE lettura = nullptr;
    HANDLE scrittura = nullptr;
    if (::CreatePipe(&lettura, &scrittura, &perIlFiglio, 0) == FALSE) ADD_FAILURE() << "no pipe";
    ::SetHandleInformation(lettura, HANDLE_FLAG_INHERIT, 0);
    Lettura = Maniglia(lettura);
    Scrittura = Maniglia(scrittura);
  }
  Maniglia Lettura;
  Maniglia Scrittura;
};

/// A word as the program's own start takes it apart again.
std::wstring FraVirgolette(const std::string& parola) {
  const std::wstring unita = PercorsoDaTesto(parola).native();
  std::wstring scritta = L"\"";
  std::size_t barre = 0;
  for (const wchar_t c : unita) {
    if (c == L'"') scritta.append(barre + 1, L'\\');
    barre = c == L'\\' ? barre + 1 : 0;
    scritta += c;
  }
  return scritta.append(barre, L'\\').append(L"\"");
}

/// The test's own variables, but no place where somebody may keep a profile.
std::wstring Ambiente(const fs::path& casa) {
  std::wstring ambiente = L"APPDATA=" + (casa.empty() ? fs::path(L"Z:\\nonexistent") : casa).native();
  ambiente += L'\0';
  wchar_t* const tutte = ::GetEnvironmentStringsW();
  for (const wchar_t* v = tutte; *v != L'\0'; v += std::wstring_view(v).size() + 1) {
    if (!std::wstring_view(v).starts_with(L"APPDATA=")) ambiente.append(v).append(1, L'\0');
  }
  ::FreeEnvironmentStringsW(tutte);
  return ambiente.append(1, L'\0');
}

void LeggiTutto(const Maniglia& tubo, std::string& testo) {
  std::array<char, 65536> pezzo;
  DWORD n = 0;
  while (::ReadFile(tubo.Valore(), pezzo.data(), static_cast<DWORD>(pezzo.size()), &n, nullptr) != FALSE &&
         n > 0)
    testo.append(pezzo.data(), n);
}

HANDLE Uscita(UscitaStandard dove, Tubo& tubo) {
  switch (dove) {
    case UscitaStandard::Raccolta:
      break;
    case UscitaStandard::Chiusa:
      return nullptr;
    case UscitaStandard::DiscoPieno:
      ADD_FAILURE() << "no full device here";
      return nullptr;
    case UscitaStandard::NessunoLegge:
      tubo.Lettura = Maniglia();
      break;
  }
  return tubo.Scrittura.Valore();
}

Maniglia Lancia(const std::vector<std::string>& argomenti, const Avvio& avvio, STARTUPINFOW& come) {
  std::wstring riga = FraVirgolette(TestoPercorso(avvio.Programma));
  for (const std::string& argomento : argomenti) riga += L" " + FraVirgolette(argomento);
  std::wstring ambiente = Ambiente(avvio.Casa);
  PROCESS_INFORMATION figlio = {};
  const BOOL partito = ::CreateProcessW(
      avvio.Programma.c_str(), riga.data(), nullptr, nullptr, TRUE, CREATE_UNICODE_ENVIRONMENT,
      ambiente.data(), avvio.Cartella.empty() ? nullptr : avvio.Cartella.c_str(), &come, &figlio);
  if (partito == FALSE) {
    ADD_FAILURE() << "cannot run " << avvio.Programma << ": " << ::GetLastError();
    return {};
  }
  ::CloseHandle(figlio.hThread);
  return Maniglia(figlio.hProcess);
}

}  // namespace

bool MemoriaLimitabile() {
  return false;
}

std::string_view PercheSenzaLimite() {
  return "no limit of memory here";
}

bool DispositivoPieno() {
  return false;
}

Esecuzione Esegui(const std::vector<std::string>& argomenti, const Avvio& avvio) {
  Tubo uscita;
  Tubo errori;
  STARTUPINFOW come = {};
  come.cb = sizeof come;
  come.dwFlags = STARTF_USESTDHANDLES;
  come.hStdOutput = Uscita(avvio.Uscita, uscita);
  come.hStdError = avvio.ErroriChiusi ? nullptr : errori.Scrittura.Valore();
  Esecuzione esecuzione;
  const Maniglia figlio = Lancia(argomenti, avvio, come);
  if (!figlio) return esecuzione;
  uscita.Scrittura = Maniglia();
  errori.Scrittura = Maniglia();
  {
    const std::jthread lettore([&] { LeggiTutto(errori.Lettura, esecuzione.Errori); });
    if (uscita.Lettura) LeggiTutto(uscita.Lettura, esecuzione.Uscita);
  }
  if (::WaitForSingleObject(figlio.Valore(), Mezzo) != WAIT_OBJECT_0) {
    ADD_FAILURE() << "the program does not end";
    ::TerminateProcess(figlio.Valore(), 99);
  }
  DWORD stato = 0;
  ::GetExitCodeProcess(figlio.Valore(), &stato);
  esecuzione.Stato = static_cast<int>(stato);
  return esecuzione;
}

}  // namespace parvik::prova
