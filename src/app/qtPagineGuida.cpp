#include "app/qtPagineGuida.h"

#include <QKeySequence>
#include <QTreeView>
#include <array>
#include <utility>

#include "app/qtElencoProblemi.h"

namespace parvik {
namespace {

struct Capitolo {
  const char* Ancora;  // the page of the manual about the same
  const char* Titolo;
  const char* Testo;
};

// clang-format off
constexpr std::array Capitoli = {
    Capitolo{"primi-passi", "Primi passi",
           "<ol><li>Scegliere il tipo di stampa: File, Tipo Stampa.</li>"
           "<li>Aprire un modello che c'è (File, Apri) o cominciare a scrivere.</li>"
           "<li>Scrivere nelle sezioni il testo che si stampa com'è, e mettere i campi con il menu Comandi, con il "
           "pannello campi o con «Inserisci codice...».</li>"
           "<li>Guardare l'anteprima: Visualizzazione, Anteprima. «Campi a misura» mostra nelle sezioni ogni codice largo "
           "come quello che stampa.</li>"
           "<li>Far verificare il modello: Tools Comandi, Verifica modello.</li>"
           "<li>Salvare: File, Salva.</li></ol>"},
    Capitolo{"sezioni", "Le sezioni",
           "<p>Il modello ha una sezione, o tre: Testata, Corpo e Piede. Quello che sta fra « e » è un codice, e si "
           "sposta e si toglie tutto intero. F4 su un codice apre la sua maschera, e altrove quella di una variabile; "
           "il tasto destro offre di aprirlo, di copiarlo e di mettergli davanti un flag.</p>"
           "<p>In «Campi a misura» il bordo destro di un campo si trascina per cambiarne la larghezza.</p>"},
    Capitolo{"anteprima", "L'anteprima",
           "<p>L'anteprima mostra quello che si stampa, con un campione al posto di ogni codice. Si rifà scegliendo "
           "Anteprima, o da sola con «Anteprima automatica».</p>"
           "<p>F4, o un clic con Ctrl, porta al testo da cui viene quel punto; «Mostra nell'anteprima» fa il contrario. Si "
           "può scegliere, copiare e cercare.</p>"},
    Capitolo{"trovare-e-sostituire", "Trova e sostituisci",
           "<p>Invio va al risultato successivo, Maiusc+Invio al precedente, Esc chiude la barra. «Solo codici» trova i "
           "codici per genere, numero o descrizione: «cliente», «V105», «105 larghezza 29»; nella casella della "
           "sostituzione si scrive che cosa cambia: «larghezza 32», «larghezza 29 → 32», «a destra», «decimali 2». "
           "Vuota, li toglie.</p>"
           "<p>Una sostituzione non lascia mai mezzo codice. «Sostituisci tutto» è un passo solo da annullare. Con "
           "«Espressione regolare» \\1 è il primo gruppo.</p>"},
    Capitolo{"inserire-i-campi", "Il pannello campi",
           "<p>Elenca quello che la sezione attiva può avere. Scrivendo si filtra, per parole della descrizione o per "
           "numero; Invio inserisce il codice, Ctrl+Invio apre la sua maschera. Un campo si può anche trascinare in una "
           "sezione. «Inserisci codice...» è lo stesso elenco accanto al cursore.</p>"},
    Capitolo{"verifica", "I problemi",
           "<p>Elenca che cosa non va nel modello. Invio porta al punto, F8 al problema seguente, Maiusc+F8 al precedente. "
           "«Correggi» corregge quelli scelti che hanno una sola correzione, in un passo.</p>"},
};
// clang-format on

/// Keys that no menu shows.
constexpr std::array AltriTasti = {
    std::pair("F4", "apre il codice al cursore, o una variabile nuova; nell'anteprima porta al testo"),
    std::pair("Spazio", "in un codice apre la sua maschera"),
    std::pair("Backspace, Canc", "accanto a un codice aprono la sua maschera, altrove cancellano"),
    std::pair("Ctrl+K, Ctrl+D", "tolgono il resto della riga, il carattere seguente"),
    std::pair("Ctrl+X, Ctrl+C, Ctrl+V, Ctrl+A", "taglia, copia, incolla, seleziona tutto"),
    std::pair("Tab, Maiusc+Tab", "sezione o controllo seguente, precedente"),
    std::pair("Invio", "va a capo; in una maschera è OK, in un elenco sceglie, nella ricerca va al prossimo"),
    std::pair("Maiusc+Invio", "nella ricerca va al precedente"),
    std::pair("Ctrl+Invio", "nell'elenco dei campi apre la maschera"),
    std::pair("Su, Giù", "nell'elenco dei campi scelgono"),
    std::pair("Esc", "chiude la maschera o la barra, senza fare niente"),
    std::pair("Maiusc+F8", "problema precedente"),
    std::pair("Ctrl++, Ctrl+-, Ctrl+0", "testo più grande, più piccolo, come all'inizio"),
    std::pair("Alt+Maiusc+Sinistra, Alt+Maiusc+Destra", "sposta il confine dell'anteprima"),
    std::pair("Alt+Sinistra, Alt+Destra", "nella guida la pagina di prima, quella dopo"),
};

QString Riga(const QString& tasti, const QString& cosa) {
  return "<tr><td><b>" + tasti.toHtmlEscaped() + "</b>&nbsp;&nbsp;</td><td>" + cosa.toHtmlEscaped() +
         "</td></tr>";
}

/// As the keyboard says it: the toolkit's translation leaves one name out.
QString NomeTasto(const QKeySequence& tasto) {
  return tasto.toString(QKeySequence::NativeText).replace("Shift", "Maiusc");
}

/// Calls `fa` with what the keys are called and what they do.
template <class Fa>
void PerOgniTasto(const qtMenu& menu, const Fa& fa) {
  for (const VoceMenu& voce : VociMenu()) {
    if (!voce.Cosa) continue;
    QStringList tasti;
    for (const QKeySequence& tasto : menu.Azione(*voce.Cosa)->shortcuts()) tasti += NomeTasto(tasto);
    if (!tasti.isEmpty()) fa(tasti.join(", "), QString(voce.Didascalia).remove('&').remove("..."));
  }
  for (const auto& [tasti, cosa] : AltriTasti) fa(QString(tasti), QString(cosa));
}

/// The page of the rule of the problem that is chosen; the one about all of them where none is.
QString PaginaProblemi(const QWidget& pannello) {
  const auto* elenco = pannello.findChild<const QTreeView*>("lstProblemi");
  if (elenco == nullptr || !elenco->currentIndex().isValid()) return "verifica";
  return "regole/" + elenco->currentIndex().siblingAtColumn(qtElencoProblemi::Quale).data().toString();
}

/// The page about a part of the window, or a dialog; "" where that is no subject of its own.
QString PaginaDi(const QWidget& controllo) {
  constexpr std::array PerNome = {std::pair("txtTCP", "sezioni"),
                                  std::pair("ricAnte", "anteprima"),
                                  std::pair("barTrova", "trovare-e-sostituire"),
                                  std::pair("pnlCampi", "inserire-i-campi"),
                                  std::pair("pnlInserisci", "inserire-i-campi"),
                                  std::pair("barAvviso", "file-cambiato"),
                                  std::pair("barRecupero", "dopo-un-guasto"),
                                  std::pair("frmParvik", "primi-passi"),
                                  std::pair("frmAttesa", "messaggi"),
                                  std::pair("frmStampa", "messaggi")};
  const QString nome = controllo.objectName();
  if (nome == "pnlProblemi") return PaginaProblemi(controllo);
  for (const auto& [inizio, pagina] : PerNome)
    if (nome.startsWith(inizio)) return pagina;
  if (nome.startsWith("frm")) return "finestre/" + nome;
  if (controllo.inherits("QMessageBox")) return "messaggi";
  if (controllo.inherits("QFileDialog")) return "salvare";
  return controllo.inherits("QAbstractPrintDialog") ? "stampare-una-prova" : QString();
}

}  // namespace

QString PaginaPer(const QWidget* fuoco) {
  for (; fuoco != nullptr; fuoco = fuoco->parentWidget()) {
    QString pagina = PaginaDi(*fuoco);
    if (!pagina.isEmpty()) return pagina;
  }
  return "primi-passi";
}

QString TabellaTasti(const qtMenu& menu) {
  QString righe;
  PerOgniTasto(menu, [&righe](const QString& tasti, const QString& cosa) { righe += Riga(tasti, cosa); });
  return "<table>" + righe + "</table>";
}

QStringList NomiTasti(const qtMenu& menu) {
  QStringList nomi;
  PerOgniTasto(menu, [&nomi](const QString& tasti, const QString& /*cosa*/) { nomi += tasti.split(", "); });
  return nomi;
}

QString AncoraDi(const QString& pagina) {
  if (pagina.startsWith("regole/")) return "verifica";
  return pagina;
}

QString TestoSenzaManuale(const qtMenu& menu) {
  QString indice;
  QString testo;
  const auto metti = [&](const char* ancora, const QString& titolo, const QString& pagina) {
    indice += QStringLiteral("<li><a href=\"#%1\">%2</a></li>").arg(ancora, titolo);
    testo += QStringLiteral("<h2><a name=\"%1\"></a>%2</h2>").arg(ancora, titolo) + pagina;
  };
  for (const Capitolo& uno : Capitoli) metti(uno.Ancora, uno.Titolo, uno.Testo);
  metti(PaginaTasti, "Tutti i tasti", TabellaTasti(menu));
  return "<h1>Guida di Ordavia</h1><p>Il manuale non è installato: qui ci sono i primi passi e tutti i "
         "tasti.</p><ul>" +
         indice + "</ul>" + testo;
}

}  // namespace parvik
