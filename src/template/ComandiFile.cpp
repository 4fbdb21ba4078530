#include "template/ComandiFile.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <system_error>
#include <utility>

#include "common/Avverti.h"
#include "common/Delimitatori.h"
#include "common/Percorsi.h"
#include "common/SeBastaMemoria.h"
#include "common/TestoMostrabile.h"
#include "common/TestoPercorso.h"
#include "common/Windows1252.h"
#include "sistema/CopiaPrecedente.h"
#include "sistema/LetturaFile.h"
#include "sistema/ScritturaSicura.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t CaratteriTitolo = 12;
constexpr const char* EstensioneModelli = ".img";

/// The pattern of the one filter entry: the type's, unless it is none that a file name could match.
std::string ModelloFiltro(const TipoDoc& tipo) {
  if (tipo.Titolo.find_first_of("*?.") == std::string::npos) return "*.img";
  return Utf8DaAnsi(tipo.Titolo);
}

std::string NomeProposto(const TipoDoc& tipo) {
  std::string nome = Utf8DaAnsi(tipo.Titolo);
  std::erase_if(nome, [](char c) { return c == '*' || c == '?'; });
  return nome;
}

/// The file that a chosen or typed name means: as it stands, or with the extension, in any case of its
/// letters.
fs::path FileDaAprire(const fs::path& scelto) {
  if (EsisteFile(scelto)) return scelto;
  const fs::path completo = ConEstensione(scelto, EstensioneModelli);
  return TrovaSenzaCaso(completo.parent_path(), TestoPercorso(completo.filename()));
}

/// Where a template is saved whose name was chosen or typed. A name without an extension means the file that
/// Open would find by it.
fs::path FileDaSalvare(const fs::path& scelto) {
  fs::path completo = ConEstensione(scelto, EstensioneModelli);
  if (completo == scelto) return completo;
  fs::path trovato = FileDaAprire(scelto);
  return EsisteFile(trovato) ? trovato : completo;
}

bool TroppoGrande(const fs::path& file) {
  std::error_code errore;
  const std::uintmax_t dimensione = fs::file_size(file, errore);
  return !errore && dimensione > MassimoModello;
}

/// Whether that is what a file holds now.
bool Contiene(const fs::path& percorso, std::string_view byte) {
  const Esito<std::string> attuali = LeggiFile(percorso);
  return attuali && *attuali == byte;
}

RichiestaFile RichiestaModello(RichiestaFile::Scopo uso, const TipoDoc& tipo, const fs::path& cartella) {
  RichiestaFile richiesta;
  richiesta.Uso = uso;
  richiesta.Cartella = cartella;
  richiesta.EtichettaFiltro = "File IMG (*.img)";
  richiesta.Modello = ModelloFiltro(tipo);
  return richiesta;
}

}  // namespace

std::string TitoloCon(const fs::path& file) {
  return "Ordavia - " + UltimiCaratteri(TestoPercorso(file), CaratteriTitolo);
}

ComandiFile::ComandiFile(Documento& documento, Interlocutore& interlocutore, Contorno& contorno,
                         fs::path dirImg)
    : documento_(documento), interlocutore_(interlocutore), contorno_(contorno), dirImg_(std::move(dirImg)) {}

Risposta ComandiFile::ChiediSeSalvare() {
  return interlocutore_.Chiedi({.Testo = "Il file è stato modificato, vuoi salvare?",
                                .Simbolo = Icona::Domanda,
                                .Tasti = Pulsanti::SiNoAnnulla,
                                .Titolo = "File immagine"});
}

/// Yes means that nothing gets lost: when nothing was saved, the command that asked must not go on. A
/// template without a name and with nothing in it has nothing to save.
bool ComandiFile::Prosegui(Risposta risposta, const TipoDoc& tipo) {
  if (risposta != Risposta::Si) return risposta == Risposta::No;
  Salva(tipo);
  return !documento_.Stato().Modificato || (documento_.Stato().NomeFile.empty() && !VerificaStampa(tipo));
}

bool ComandiFile::PuoProseguire(const TipoDoc& tipo) {
  return !documento_.Stato().Modificato || Prosegui(ChiediSeSalvare(), tipo);
}

void ComandiFile::Nuovo(const TipoDoc& tipo) {
  if (documento_.Stato().Modificato && ChiediSeSalvare() == Risposta::Si) Salva(tipo);
  documento_.Stato().Modificato = false;
  documento_.Stato().Origine.reset();
  documento_.Stato().Tenuta.clear();
  documento_.DimenticaPassi();
  contorno_.TornaSenzaTipo();
}

void ComandiFile::Apri(const TipoDoc& tipo) {
  if (!PuoProseguire(tipo)) return;
  RichiestaFile richiesta = RichiestaModello(RichiestaFile::Scopo::Apri, tipo, dirImg_);
  richiesta.Titolo = "Apri File Immagine";
  const fs::path scelto = interlocutore_.ScegliFile(richiesta);
  const fs::path file = scelto.empty() ? scelto : FileDaAprire(scelto);
  if (TroppoGrande(file)) {
    interlocutore_.Chiedi({.Testo = TestoErrore(NumeroErrore::MemoriaEsaurita)});
    return;
  }
  documento_.Stato().NomeFile = file;
  if (scelto.empty()) return;
  // The command is silent on every failure: what could be read is shown.
  static_cast<void>(ApriScelto(tipo));
}

Esito<void> ComandiFile::ApriScelto(const TipoDoc& tipo) {
  contorno_.SpegniAnteprima();
  if (documento_.Testo(Sezione::Testata).Dimensione() > 0) contorno_.AzzeraFlagStampe();
  documento_.Stato().Modificato = false;
  documento_.Stato().Tenuta.clear();
  documento_.DimenticaPassi();
  return Leggi(tipo, &Documento::Imposta);
}

void ComandiFile::SegnalaConNome(NumeroErrore errore, const fs::path& file) {
  interlocutore_.Chiedi({.Testo = TestoErrore(errore) + "\r\n" + Mostrabile(TestoPercorso(file))});
}

std::optional<fs::path> ComandiFile::TrovaDaFuori(const fs::path& nome) {
  const fs::path file = FileDaAprire(nome);
  if (EsisteFile(file)) return file;
  SegnalaConNome(NumeroErrore::FileNonTrovato, nome);
  return std::nullopt;
}

void ComandiFile::ApriDaFuori(const TipoDoc& tipo, const fs::path& nome) {
  const std::optional<fs::path> file = TrovaDaFuori(nome);
  if (!file || !PuoProseguire(tipo)) return;
  if (TroppoGrande(*file)) return SegnalaConNome(NumeroErrore::MemoriaEsaurita, *file);
  documento_.Stato().NomeFile = *file;
  if (const Esito<void> letto = ApriScelto(tipo); !letto) SegnalaConNome(letto.Errore(), *file);
}

void ComandiFile::Salva(const TipoDoc& tipo) {
  if (documento_.Stato().NomeFile.empty()) {
    if (VerificaStampa(tipo)) SalvaConNome(tipo);
    return;
  }
  const EsitoScrittura scritto = Scrivi(documento_.Stato().NomeFile, tipo);
  if (scritto) {
    Avverti(*scritto, interlocutore_);
  } else {
    interlocutore_.Chiedi({.Testo = TestoErrore(scritto.Errore())});
  }
}

void ComandiFile::SalvaConNome(const TipoDoc& tipo) {
  RichiestaFile richiesta = RichiestaModello(RichiestaFile::Scopo::Salva, tipo, dirImg_);
  richiesta.Titolo = "Salva con nome";
  richiesta.NomeProposto = NomeProposto(tipo);
  const fs::path scelto = interlocutore_.ScegliFile(richiesta);
  if (scelto.empty()) return;
  const fs::path percorso = FileDaSalvare(scelto);
  const EsitoScrittura scritto = ScriviERileggi(percorso, tipo);
  if (scritto) Avverti(*scritto, interlocutore_);  // else silent; the template stays modified
}

/// The sections show what the file holds. It was written just now: a failure to read it back loses nothing.
EsitoScrittura ComandiFile::ScriviERileggi(const fs::path& percorso, const TipoDoc& tipo) {
  const Documento::PassoUnico passo(documento_);
  EsitoScrittura scritto = Scrivi(percorso, tipo);
  if (!scritto) return scritto;
  documento_.Stato().NomeFile = percorso;
  static_cast<void>(Leggi(tipo, &Documento::Rileggi));
  return scritto;
}

bool ComandiFile::PuoChiudere(const TipoDoc& tipo) {
  if (chiedeDiChiudere_) return false;
  if (!documento_.Stato().Modificato) return true;
  chiedeDiChiudere_ = true;
  const Risposta risposta = ChiediSeSalvare();
  chiedeDiChiudere_ = false;  // what the answer asks for may take long, and be interrupted in its turn
  return Prosegui(risposta, tipo);
}

bool ComandiFile::VerificaStampa(const TipoDoc& tipo) const {
  const auto vuota = [this](Sezione sezione) { return documento_.Testo(sezione).Vale(FineRiga); };
  if (tipo.NumSezioni == 1) return !vuota(Sezione::Testata);
  return !std::ranges::all_of(TutteLeSezioni, vuota);
}

/// A file that would be written with the bytes that it has loses nothing, and the copy that there may be is
/// worth more.
EsitoPasso ComandiFile::ConservaAltrui(const fs::path& percorso, std::string_view nuovi) {
  std::error_code errore;
  if (!fs::is_regular_file(percorso, errore)) return {};  // nothing that could be kept
  const Esito<std::string> attuali = LeggiFile(percorso);
  if (!attuali) return ErroreScrittura{attuali.Errore()};
  const std::optional<Provenienza>& origine = documento_.Stato().Origine;
  const bool suoi = origine && origine->File == percorso && *origine->Byte == *attuali;
  if (suoi || *attuali == nuovi) return {};
  // Links are followed: the copy lies beside the file that they lead to.
  fs::path tenuta =
      NomePrecedente(fs::is_symlink(percorso, errore) ? fs::canonical(percorso, errore) : percorso);
  EsitoPasso conservato = ConservaPrecedente(percorso, *attuali);
  if (conservato) documento_.Stato().Tenuta = std::move(tenuta);
  return conservato;
}

/// The copy is made when the new bytes stand ready: on a full disk no older copy is given up for nothing.
EsitoScrittura ComandiFile::Sostituisci(const fs::path& percorso, std::string_view nuovi) {
  documento_.Stato().Tenuta.clear();
  auto file = ScritturaSicura::Apri(percorso);
  if (!file) return file.Errore();
  if (const EsitoPasso scritto = file->Scrivi(nuovi); !scritto) return scritto.Errore();
  if (const EsitoPasso tenuto = ConservaAltrui(percorso, nuovi); !tenuto) return tenuto.Errore();
  return file->Conferma();
}

EsitoScrittura ComandiFile::Scrivi(const fs::path& percorso, const TipoDoc& tipo) {
  const auto scrivi = [&] { return ScriviTesti(percorso, tipo); };
  return SeBastaMemoria(scrivi, ErroreScrittura{NumeroErrore::MemoriaEsaurita});
}

EsitoScrittura ComandiFile::ScriviTesti(const fs::path& percorso, const TipoDoc& tipo) {
  TestiSezioni testi;
  for (const Sezione sezione : TutteLeSezioni) testi[Indice(sezione)] = documento_.Testo(sezione).Byte();
  const std::size_t corpoPrima = testi[Indice(Sezione::Corpo)].size();
  documento_.Stato().Modificato = true;  // until the file is on the disk
  Esito<std::string> immagine = ScriviImmagine(testi, documento_.Stato().Corpo, FormatoDi(tipo.NumSezioni));
  if (!immagine) return ErroreScrittura{immagine.Errore()};
  if (testi[Indice(Sezione::Corpo)].size() != corpoPrima) documento_.CompletaUltimaRiga(Sezione::Corpo);
  Provenienza nuova{.File = percorso, .Byte = std::make_shared<const std::string>(std::move(*immagine))};
  EsitoScrittura scritto = Sostituisci(percorso, *nuova.Byte);
  // A save may fail when the new bytes stand there already, but are not known to be safe.
  if (scritto || Contiene(percorso, *nuova.Byte)) documento_.Stato().Origine = std::move(nuova);
  if (scritto) documento_.Stato().Modificato = false;
  return scritto;
}

Esito<void> ComandiFile::Leggi(const TipoDoc& tipo, Imposta imposta) {
  contorno_.ImpostaTitolo(TitoloCon(documento_.Stato().NomeFile));
  documento_.Stato().Origine.reset();
  return SeBastaMemoria([&] { return LeggiTesti(tipo, imposta); });
}

Esito<void> ComandiFile::LeggiTesti(const TipoDoc& tipo, Imposta imposta) {
  Esito<std::string> byte = LeggiFile(documento_.Stato().NomeFile);
  if (!byte) return byte.Errore();
  const Formato formato = FormatoDi(tipo.NumSezioni);
  const Esito<ImmagineLetta> immagine = LeggiImmagine(*byte, formato, documento_.Stato().Corpo);
  if (!immagine) return immagine.Errore();
  const ImmagineLetta& letta = *immagine;
  documento_.Stato().Corpo = letta.Corpo;
  for (const Sezione sezione : TutteLeSezioni) {
    if (formato == Formato::UnaSezione && sezione != Sezione::Testata) continue;
    (documento_.*imposta)(sezione, letta.Testi[Indice(sezione)]);
  }
  if (!letta.TestoNonLetto) {
    documento_.Stato().Origine = {.File = documento_.Stato().NomeFile,
                                  .Byte = std::make_shared<const std::string>(std::move(*byte))};
  }
  if (letta.Errore) return *letta.Errore;
  return {};
}

}  // namespace parvik
