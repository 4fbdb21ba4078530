#include "verifica/Regole.h"

#include <algorithm>
#include <array>

namespace parvik {
namespace {

constexpr Livello Errore = Livello::Errore;
constexpr Livello Avviso = Livello::Avviso;
constexpr bool Corregge = true;

// clang-format off
constexpr std::array<VoceRegola, NumRegole> Tabella = {{
    {Regola::TipoIncerto, "tipo-incerto", Errore, "nessun tipo di documento corrisponde al nome del file, o più di uno"},
    {Regola::VariabileSconosciuta, "variabile-sconosciuta", Errore, "una variabile che nessuna sezione del tipo offre"},
    {Regola::VariabileDiAltraSezione, "variabile-di-altra-sezione", Avviso, "una variabile che solo un'altra sezione offre"},
    {Regola::FlagSconosciuto, "flag-sconosciuto", Errore, "un flag che nessuna sezione del tipo offre"},
    {Regola::FlagDiAltraSezione, "flag-di-altra-sezione", Avviso, "un flag che solo un'altra sezione offre"},
    {Regola::CodiceSconosciuto, "codice-sconosciuto", Errore, "un codice di nessun genere, o vuoto"},
    {Regola::CodiceNonChiuso, "codice-non-chiuso", Errore, "un'apertura senza chiusura fino alla fine della sezione"},
    {Regola::CodiceSuPiuRighe, "codice-su-piu-righe", Errore, "una fine di riga dentro un codice"},
    {Regola::AperturaNelCodice, "apertura-nel-codice", Errore, "un'apertura dentro un codice"},
    {Regola::ChiusuraIsolata, "chiusura-isolata", Avviso, "una chiusura fuori dai codici"},
    {Regola::CodiceIncompleto, "codice-incompleto", Errore, "un codice a cui manca ciò di cui non può fare a meno"},
    {Regola::FormatoDiverso, "formato-diverso", Avviso, "un codice che la sua maschera riscriverebbe in altro modo", Corregge},
    {Regola::MultilineaPersa, "multilinea-persa", Avviso, "un numero di righe su una variabile numerica", Corregge},
    {Regola::LarghezzaInsufficiente, "larghezza-insufficiente", Avviso, "un campo in cui il valore di esempio non sta: stampa \"#\""},
    {Regola::FlagSenzaEffetto, "flag-senza-effetto", Avviso, "un flag che non governa nessun codice"},
    {Regola::FlagSuAltraRiga, "flag-su-altra-riga", Avviso, "un flag che governa un codice di una riga seguente"},
    {Regola::FlagSuStile, "flag-su-stile", Avviso, "un flag che nasconde uno stile, e non il valore"},
    {Regola::MarcatoreMancante, "marcatore-mancante", Errore, "tre sezioni, e nessuna riga di marcatore"},
    {Regola::MarcatoreInPrimaRiga, "marcatore-in-prima-riga", Errore, "un marcatore nella prima riga, dove nessuno lo cerca"},
    {Regola::MarcatoreMalformato, "marcatore-malformato", Errore, "una riga presa per il marcatore, che non ne ha uno intero"},
    {Regola::MarcatoreAmbiguo, "marcatore-ambiguo", Avviso, "altro accanto al marcatore, o un'altra riga che è un marcatore"},
    {Regola::RigheCorpo, "righe-corpo", Errore, "il marcatore promette righe che non ci sono, o numeri oltre 16 bit"},
    {Regola::CorpoNonStampato, "corpo-non-stampato", Avviso, "un corpo con del testo che non si stampa mai"},
    {Regola::TestoStile, "testo-stile", Avviso, "testo che l'anteprima prende per un segno di stile"},
    {Regola::FineRigaLf, "fine-riga-lf", Errore, "un file con LF e senza CR: è una riga sola"},
    {Regola::DelimitatoreDiFile, "delimitatore-di-file", Avviso, "nell'editor: un carattere che salvando diventa un delimitatore"},
    {Regola::RigaSenzaFine, "riga-senza-fine", Avviso, "nell'editor: testo dopo l'ultima fine di riga, che salvando va perso o cambia"},
    {Regola::RigaLunga, "riga-lunga", Avviso, "con --larghezza: una riga stampata più lunga"},
    {Regola::PaginaLunga, "pagina-lunga", Avviso, "con --righe: una pagina di più righe"},
    {Regola::Cornice, "cornice", Avviso, "con --cornici: barre che non combaciano con i + delle righe sopra e sotto"},
}};
// clang-format on

}  // namespace

std::span<const VoceRegola> Regole() {
  return Tabella;
}

const VoceRegola& VoceDi(Regola regola) {
  return Tabella[static_cast<std::size_t>(regola)];
}

const VoceRegola* RegolaDi(std::string_view nome) {
  const auto* const voce = std::ranges::find(Tabella, nome, &VoceRegola::Nome);
  return voce == Tabella.end() ? nullptr : voce;
}

std::string_view NomeLivello(Livello livello) {
  return livello == Livello::Errore ? "errore" : "avviso";
}

}  // namespace parvik
