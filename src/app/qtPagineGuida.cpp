#include "app/qtPagineGuida.h"

#include <QKeySequence>
#include <QStringList>
#include <array>

namespace parvik {
namespace {

struct Pagina {
  PaginaGuida Quale;
  const char* Ancora;
  const char* Titolo;
  const char* Testo;
};

// clang-format off
constexpr std::array Pagine = {
    Pagina{PaginaGuida::PrimiPassi, "primi-passi", "Primi passi",
           "<ol><li>Scegliere il tipo di stampa: File, Tipo Stampa.</li>"
           "<li>Aprire un modello che c'è (File, Apri) o cominciare a scrivere.</li>"
           "<li>Scrivere nelle sezioni il testo che si stampa com'è, e mettere i campi con il menu Comandi, con il "
           "pannello campi o con «Inserisci codice...».</li>"
           "<li>Guardare l'anteprima: Visualizzazione, Anteprima. «Campi a misura» mostra nelle sezioni ogni codice largo "
           "come quello che stampa.</li>"
           "<li>Far verificare il modello: Tools Comandi, Verifica modello.</li>"
           "<li>Salvare: File, Salva.</li></ol>"},
    Pagina{PaginaGuida::Sezioni, "sezioni", "Le sezioni",
           "<p>Il modello ha una sezione, o tre: Testata, Corpo e Piede. Quello che sta fra « e » è un codice, e si "
           "sposta e si toglie tutto intero. F4 su un codice apre la sua maschera, e altrove quella di una variabile; "
           "il tasto destro offre di aprirlo, di copiarlo e di mettergli davanti un flag.</p>"
           "<p>In «Campi a misura» il bordo destro di un campo si trascina per cambiarne la larghezza.</p>"},
    Pagina{PaginaGuida::Anteprima, "anteprima", "L'anteprima",
           "<p>L'anteprima mostra quello che si stampa, con un campione al posto di ogni codice. Si rifà scegliendo "
           "Anteprima, o da sola con «Anteprima automatica».</p>"
           "<p>F4, o un clic con Ctrl, porta al testo da cui viene quel punto; «Mostra nell'anteprima» fa il contrario. Si "
           "può scegliere, copiare e cercare.</p>"},
    Pagina{PaginaGuida::Trova, "trova", "Trova e sostituisci",
           "<p>Invio va al risultato successivo, Maiusc+Invio al precedente, Esc chiude la barra. «Solo codici» trova i "
           "codici per genere, numero o descrizione: «cliente», «V105», «105 larghezza 29»; nella casella della "
           "sostituzione si scrive che cosa cambia: «larghezza 32», «larghezza 29 → 32», «a destra», «decimali 2». "
           "Vuota, li toglie.</p>"
           "<p>Una sostituzione non lascia mai mezzo codice. «Sostituisci tutto» è un passo solo da annullare. Con "
           "«Espressione regolare» \\1 è il primo gruppo.</p>"},
    Pagina{PaginaGuida::Campi, "campi", "Il pannello campi",
           "<p>Elenca quello che la sezione attiva può avere. Scrivendo si filtra, per parole della descrizione o per "
           "numero; Invio inserisce il codice, Ctrl+Invio apre la sua maschera. Un campo si può anche trascinare in una "
           "sezione. «Inserisci codice...» è lo stesso elenco accanto al cursore.</p>"},
    Pagina{PaginaGuida::Problemi, "problemi", "I problemi",
           "<p>Elenca che cosa non va nel modello. Invio porta al punto, F8 al problema seguente, Maiusc+F8 al precedente. "
           "«Correggi» corregge quelli scelti che hanno una sola correzione, in un passo.</p>"},
};
// clang-format on

/// Keys that no menu shows.
constexpr std::array<std::pair<const char*, const char*>, 7> AltriTasti = {{
    {"F4", "apre il codice al cursore, o una variabile nuova; nell'anteprima porta al testo"},
    {"Maiusc+F8", "problema precedente"},
    {"Ctrl++, Ctrl+-, Ctrl+0", "testo più grande, più piccolo, come all'inizio"},
    {"Alt+Maiusc+Sinistra, Alt+Maiusc+Destra", "sposta il confine dell'anteprima"},
    {"Tab, Maiusc+Tab", "sezione o controllo seguente, precedente"},
    {"Ctrl+X, Ctrl+C, Ctrl+V, Ctrl+A", "taglia, copia, incolla, seleziona tutto"},
    {"Esc", "chiude la maschera o la barra, senza fare niente"},
}};

QString Riga(const QString& tasti, const QString& cosa) {
  return "<tr><td><b>" + tasti.toHtmlEscaped() + "</b>&nbsp;&nbsp;</td><td>" + cosa.toHtmlEscaped() +
         "</td></tr>";
}

QString Tasti(const qtMenu& menu) {
  QString righe;
  for (const VoceMenu& voce : VociMenu()) {
    if (!voce.Cosa) continue;
    const QAction& azione = *menu.Azione(*voce.Cosa);
    QStringList tasti;
    for (const QKeySequence& tasto : azione.shortcuts()) tasti += tasto.toString(QKeySequence::NativeText);
    if (!tasti.isEmpty()) righe += Riga(tasti.join(", "), QString(voce.Didascalia).remove('&').remove("..."));
  }
  for (const auto& [tasti, cosa] : AltriTasti) righe += Riga(tasti, cosa);
  return "<table>" + righe + "</table>";
}

}  // namespace

PaginaGuida PaginaPer(const QWidget* fuoco) {
  constexpr std::array<std::pair<const char*, PaginaGuida>, 6> PerNome = {
      {{"txtTCP", PaginaGuida::Sezioni},
       {"ricAnte", PaginaGuida::Anteprima},
       {"barTrova", PaginaGuida::Trova},
       {"pnlCampi", PaginaGuida::Campi},
       {"pnlInserisci", PaginaGuida::Campi},
       {"pnlProblemi", PaginaGuida::Problemi}}};
  for (; fuoco != nullptr; fuoco = fuoco->parentWidget()) {
    for (const auto& [nome, pagina] : PerNome)
      if (fuoco->objectName().startsWith(nome)) return pagina;
  }
  return PaginaGuida::PrimiPassi;
}

QString AncoraDi(PaginaGuida pagina) {
  for (const Pagina& una : Pagine)
    if (una.Quale == pagina) return una.Ancora;
  return "tasti";
}

QString TestoGuida(const qtMenu& menu) {
  QString indice;
  QString testo;
  const auto metti = [&](const char* ancora, const QString& titolo, const QString& pagina) {
    indice += QStringLiteral("<li><a href=\"#%1\">%2</a></li>").arg(ancora, titolo);
    testo += QStringLiteral("<h2><a name=\"%1\"></a>%2</h2>").arg(ancora, titolo) + pagina;
  };
  for (const Pagina& pagina : Pagine) metti(pagina.Ancora, pagina.Titolo, pagina.Testo);
  metti("tasti", "Tutti i tasti", Tasti(menu));
  return "<h1>Guida di Ordavia</h1><ul>" + indice + "</ul>" + testo;
}

}  // namespace parvik
