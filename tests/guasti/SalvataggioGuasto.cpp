#include "guasti/SalvataggioGuasto.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "common/FileDiProva.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;
using Elenco = std::vector<std::string>;

constexpr std::string_view FineTenuto = "a.img~";

/// Longer than what becomes of it: a save in place that stops half way shows.
std::string Vecchio() {
  return "testata\r\nqualcosa" + NelFile("C 024 righe di corpo;1.0 linee;C") +
         "e altro\r\ncorpo\r\npiede\r\n";
}
std::string Nuovo() {
  return "testata\r\n" + NelFile("C24;1;C") + "\r\ncorpo\r\npiede\r\n";
}
std::string Seguente() {
  return "seguente\r\n" + NelFile("C1;0;") + "\r\n";
}

std::string ContenutoSeCe(const fs::path& file) {
  return fs::exists(file) ? Contenuto(file) : "";
}

/// "open .a.img.WRITER.nuovo~ !" as "open new file !".
std::string ConRuolo(const std::string& riga) {
  const std::size_t spazio = riga.find(' ');
  const bool colpita = riga.ends_with(" !");
  const std::string nome = riga.substr(spazio + 1, riga.size() - spazio - 1 - (colpita ? 2 : 0));
  std::string ruolo = "file";
  if (nome.ends_with(".nuovo~")) ruolo = "new file";
  if (nome.ends_with(".vecchio~")) ruolo = "copy";
  if (nome == "modelli") ruolo = "folder";
  if (nome.starts_with("parvik32-")) ruolo = "temporary folder";
  return riga.substr(0, spazio + 1) + ruolo + (colpita ? " !" : "");
}

std::string DettoTenuto(const fs::path& tenuto) {
  return "Un salvataggio interrotto aveva lasciato il contenuto di prima: ora è in " + tenuto.string();
}

Elenco Righe(const fs::path& file) {
  Elenco righe;
  std::ifstream flusso(file);
  for (std::string riga; std::getline(flusso, riga);) righe.push_back(ConRuolo(riga));
  return righe;
}

}  // namespace

EsitoSalvataggio SalvataggioGuasto::Salva(const std::vector<Guasto>& guasti) const {
  Prepara();
  Elenco argomenti = {File()};
  if (via_ == Via::NuovoFile) argomenti = {"-o", File(), host_.Percorso() / "vecchio.img"};
  EsitoSalvataggio esito;
  esito.Programma = Normalizza(argomenti, guasti);
  esito.Stato = Guarda();
  esito.Copia = Copia();
  esito.Avanzi = Avanzi();
  esito.Chiamate = Righe(Diario());
  if (!esito.Avanzi.empty()) VerificaSalvataggioSeguente();
  return esito;
}

void SalvataggioGuasto::Prepara() const {
  for (const fs::path& cartella : {Cartella(), Temporanea()}) {
    fs::remove_all(cartella);
    fs::create_directory(cartella);
  }
  fs::remove(Diario());
  Crea(via_ == Via::NuovoFile ? host_.Percorso() / "vecchio.img" : File(), Vecchio());
  if (Attesi().size() == 2) fs::create_hard_link(File(), Cartella() / "b.img");
}

Elenco SalvataggioGuasto::Attesi() const {
  if (via_ == Via::Accanto || via_ == Via::NuovoFile) return {"a.img"};
  return {"a.img", "b.img"};
}

Elenco SalvataggioGuasto::NellaCartella() const {
  return Nomi(Cartella());
}

Elenco SalvataggioGuasto::NellaTemporanea() const {
  Elenco nomi;
  for (const std::string& cartella : Nomi(Temporanea())) {
    nomi.push_back(cartella + "/");
    std::ranges::copy(Nomi(Temporanea() / cartella), std::back_inserter(nomi));
  }
  return nomi;
}

Elenco SalvataggioGuasto::Avanzi() const {
  const Elenco attesi = Attesi();
  Elenco avanzi = NellaTemporanea();
  std::ranges::copy_if(NellaCartella(), std::back_inserter(avanzi), [&](const std::string& nome) {
    return std::ranges::find(attesi, nome) == attesi.end();
  });
  return avanzi;
}

Esecuzione SalvataggioGuasto::Normalizza(Elenco argomenti, const std::vector<Guasto>& guasti) const {
  PianoGuasti piano = {.Cartelle = {Cartella(), Temporanea()}, .Guasti = guasti};
  if (via_ == Via::CopiaAltrove) piano.Chiusa = Cartella();
  const VariabileAmbiente libreria("LD_PRELOAD", PARVIK_LIBRERIA_GUASTI);
  // A sanitized program wants its sanitizer first; behind the faults it sees what they let through.
  const VariabileAmbiente opzioni("ASAN_OPTIONS", OpzioniAsan("verify_asan_link_order=0").c_str());
  const VariabileAmbiente conPiano("PARVIK_GUASTI", Scritto(piano).c_str());
  const VariabileAmbiente conDiario("PARVIK_GUASTI_DIARIO", Diario().c_str());
  const VariabileAmbiente temporanea("TMPDIR", Temporanea().c_str());
  argomenti.insert(argomenti.begin(), {"normalizza", "--tipo", "1"});
  return Esegui(host_.Argomenti(argomenti));
}

/// The folders of copies, beside and elsewhere.
std::vector<fs::path> SalvataggioGuasto::CartelleCopie() const {
  std::vector<fs::path> cartelle = {Cartella()};
  for (const std::string& nome : Nomi(Temporanea())) cartelle.push_back(Temporanea() / nome);
  return cartelle;
}

/// A file whose name ends so and that holds the old bytes; "" when there is none.
fs::path SalvataggioGuasto::VecchioIn(std::string_view fineNome) const {
  for (const fs::path& cartella : CartelleCopie()) {
    for (const std::string& nome : Nomi(cartella)) {
      if (nome.ends_with(fineNome) && Contenuto(cartella / nome) == Vecchio()) return cartella / nome;
    }
  }
  return {};
}

Disco SalvataggioGuasto::Guarda() const {
  if (via_ == Via::NuovoFile && !fs::exists(File())) return Disco::Vecchio;
  const std::string byte = ContenutoSeCe(File());
  if (byte == Nuovo()) return Disco::Nuovo;
  if (byte == Vecchio() && via_ != Via::NuovoFile) return Disco::Vecchio;
  return Copia().empty() ? Disco::Perso : Disco::Copia;
}

void SalvataggioGuasto::VerificaSalvataggioSeguente() const {
  const bool daTenere = !Copia().empty() && ContenutoSeCe(File()) != Vecchio();
  const fs::path seguente = host_.Percorso() / "seguente.img";
  Crea(seguente, Seguente());
  const Esecuzione programma = Normalizza({"-o", File(), seguente}, {});
  for (const std::string& nome : Attesi()) EXPECT_EQ(Contenuto(Cartella() / nome), Seguente());
  const fs::path tenuto = VecchioIn(FineTenuto);
  EXPECT_EQ(!tenuto.empty(), daTenere);
  // Beside the file it lies where previous contents always are: only elsewhere it must be told.
  const bool altrove = daTenere && tenuto.parent_path() != Cartella();
  EXPECT_EQ(programma, (Esecuzione{0, "", altrove ? Detto(File(), "avviso: " + DettoTenuto(tenuto)) : ""}));
  Elenco attesi = Attesi();
  if (daTenere && !altrove) attesi.insert(attesi.begin() + 1, std::string(FineTenuto));
  EXPECT_EQ(NellaCartella(), attesi);
  Elenco attesiAltrove;
  if (altrove) attesiAltrove = {tenuto.parent_path().filename().string() + "/", tenuto.filename()};
  EXPECT_EQ(NellaTemporanea(), attesiAltrove);
}

}  // namespace parvik::prova
