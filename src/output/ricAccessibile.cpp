#include "output/ricAccessibile.h"

#include <QFontInfo>
#include <algorithm>
#include <limits>

#include "common/qtTesto.h"
#include "output/ricAnte.h"
#include "template/TestoSezione.h"

namespace parvik {
namespace {

constexpr std::size_t MassimoAnnunciato = 65'536;

QAccessibleInterface* Crea(const QString& classe, QObject* oggetto) {
  auto* pannello = qobject_cast<ricAnte*>(oggetto);
  const bool nostra = pannello != nullptr && classe == ricAnte::staticMetaObject.className();
  return nostra ? new ricAccessibile(*pannello) : nullptr;  // the toolkit owns it
}

QString Annunciato(const TestoAnteprima& testo, std::size_t byte) {
  return PerSchermo(testo.Testo().substr(byte, MassimoAnnunciato));
}

int ComeInt(std::size_t valore) {
  return static_cast<int>(std::min<std::size_t>(valore, std::numeric_limits<int>::max()));
}

}  // namespace

ricAccessibile::ricAccessibile(ricAnte& pannello) : QAccessibleWidget(&pannello, QAccessible::EditableText) {}

void ricAccessibile::Registra() {
  QAccessible::installFactory(Crea);
}

void ricAccessibile::AnnunciaTesto(ricAnte& pannello, const TestoAnteprima& prima) {
  if (!QAccessible::isActive()) return;
  QAccessibleTextUpdateEvent evento(&pannello, 0, Annunciato(prima, 0), Annunciato(pannello.Contenuto(), 0));
  evento.setCursorPosition(ComeInt(CarattereDi(pannello.Contenuto(), pannello.Cursore())));
  QAccessible::updateAccessibility(&evento);
}

void ricAccessibile::AnnunciaDifferenza(ricAnte& pannello, const TestoAnteprima& prima) {
  if (!QAccessible::isActive()) return;
  const TestoAnteprima& testo = pannello.Contenuto();
  const Modifica modifica = Differenza(prima.Testo(), testo.Testo());
  if (modifica.Tolti == 0 && modifica.Messi.empty()) return;
  const std::string_view tolti = prima.Testo().substr(modifica.Dove, modifica.Tolti);
  QAccessibleTextUpdateEvent evento(
      &pannello, ComeInt(CarattereDi(testo, Aggancia(testo, modifica.Dove))),
      PerSchermo(tolti.substr(0, MassimoAnnunciato)),
      PerSchermo(std::string_view(modifica.Messi).substr(0, MassimoAnnunciato)));
  evento.setCursorPosition(ComeInt(CarattereDi(testo, pannello.Cursore())));
  QAccessible::updateAccessibility(&evento);
}

void ricAccessibile::AnnunciaAggiunta(ricAnte& pannello, std::size_t byte) {
  if (!QAccessible::isActive()) return;
  const TestoAnteprima& testo = pannello.Contenuto();
  const std::size_t da = Aggancia(testo, byte);
  QAccessibleTextInsertEvent evento(&pannello, ComeInt(CarattereDi(testo, da)), Annunciato(testo, da));
  evento.setCursorPosition(ComeInt(CarattereDi(testo, pannello.Cursore())));
  QAccessible::updateAccessibility(&evento);
}

void ricAccessibile::AnnunciaCursore(ricAnte& pannello, const Selezione& prima) {
  if (!QAccessible::isActive()) return;
  const auto posizione = [&pannello](std::size_t byte) {
    return ComeInt(CarattereDi(pannello.Contenuto(), byte));
  };
  const Selezione scelto = pannello.Selezionato();
  if (scelto.Lunghezza > 0 || prima.Lunghezza > 0) {
    QAccessibleTextSelectionEvent evento(&pannello, posizione(scelto.Inizio), posizione(scelto.Fine()));
    evento.setCursorPosition(posizione(pannello.Cursore()));
    QAccessible::updateAccessibility(&evento);
  }
  QAccessibleTextCursorEvent evento(&pannello, posizione(pannello.Cursore()));
  QAccessible::updateAccessibility(&evento);
}

ricAnte& ricAccessibile::Pannello() const {
  return *static_cast<ricAnte*>(widget());
}

const TestoAnteprima& ricAccessibile::Testo() const {
  return Pannello().Contenuto();
}

/// Negative positions are the start, those behind the text its end.
std::size_t ricAccessibile::Byte(int posizione) const {
  return Aggancia(Testo(), ByteDi(Testo(), static_cast<std::size_t>(std::max(0, posizione))));
}

int ricAccessibile::Posizione(std::size_t byte) const {
  return ComeInt(CarattereDi(Testo(), byte));
}

void* ricAccessibile::interface_cast(QAccessible::InterfaceType tipo) {
  if (tipo == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  return QAccessibleWidget::interface_cast(tipo);
}

QAccessible::State ricAccessibile::state() const {
  QAccessible::State stato = QAccessibleWidget::state();
  stato.readOnly = true;
  stato.multiLine = true;
  stato.selectableText = true;
  return stato;
}

QString ricAccessibile::text(QAccessible::Text cosa) const {
  return cosa == QAccessible::Value ? PerSchermo(Testo().Testo()) : QAccessibleWidget::text(cosa);
}

void ricAccessibile::selection(int indice, int* inizio, int* fine) const {
  const Selezione scelto = Pannello().Selezionato();
  const bool presente = indice == 0 && scelto.Lunghezza > 0;
  *inizio = presente ? Posizione(scelto.Inizio) : 0;
  *fine = presente ? Posizione(scelto.Fine()) : 0;
}

int ricAccessibile::selectionCount() const {
  return Pannello().Selezionato().Lunghezza > 0 ? 1 : 0;
}

void ricAccessibile::addSelection(int inizio, int fine) {
  setSelection(0, inizio, fine);
}

void ricAccessibile::removeSelection(int indice) {
  if (indice == 0) setCursorPosition(cursorPosition());
}

void ricAccessibile::setSelection(int indice, int inizio, int fine) {
  if (indice == 0) Pannello().Seleziona(Byte(inizio), Byte(fine));
}

int ricAccessibile::cursorPosition() const {
  return Posizione(Pannello().Cursore());
}

void ricAccessibile::setCursorPosition(int posizione) {
  setSelection(0, posizione, posizione);
}

QString ricAccessibile::text(int inizio, int fine) const {
  const std::size_t da = Byte(inizio);
  const std::size_t a = fine < 0 ? Testo().Testo().size() : Byte(fine);
  return PerSchermo(Testo().Testo().substr(da, std::max(da, a) - da));
}

int ricAccessibile::characterCount() const {
  return Posizione(Testo().Testo().size());
}

/// The unit that the character at `byte` belongs to. Sentences and paragraphs are lines here.
Selezione ricAccessibile::Unita(std::size_t byte, QAccessible::TextBoundaryType unita) const {
  const bool fineRiga = byte == Testo().TermineRiga(Testo().RigaDi(byte));
  switch (unita) {
    case QAccessible::CharBoundary:
      return {.Inizio = byte, .Lunghezza = CarattereDopo(Testo(), byte) - byte};
    case QAccessible::WordBoundary:
      if (fineRiga) return {.Inizio = byte, .Lunghezza = CarattereDopo(Testo(), byte) - byte};
      return ParolaA(Testo(), byte);
    case QAccessible::NoBoundary:
      return {.Inizio = 0, .Lunghezza = Testo().Testo().size()};
    default:
      return RigaA(Testo(), byte);
  }
}

QString ricAccessibile::Consegna(const Selezione& parte, int* inizio, int* fine) const {
  *inizio = Posizione(parte.Inizio);
  *fine = Posizione(parte.Fine());
  return PerSchermo(Testo().Testo().substr(parte.Inizio, parte.Lunghezza));
}

QString ricAccessibile::textAtOffset(int posizione, QAccessible::TextBoundaryType unita, int* inizio,
                                     int* fine) const {
  return Consegna(Unita(Byte(posizione), unita), inizio, fine);
}

QString ricAccessibile::textBeforeOffset(int posizione, QAccessible::TextBoundaryType unita, int* inizio,
                                         int* fine) const {
  const std::size_t da = Unita(Byte(posizione), unita).Inizio;
  const Selezione nessuna{.Inizio = 0, .Lunghezza = 0};
  return Consegna(da == 0 ? nessuna : Unita(CarattereDavanti(Testo(), da), unita), inizio, fine);
}

QString ricAccessibile::textAfterOffset(int posizione, QAccessible::TextBoundaryType unita, int* inizio,
                                        int* fine) const {
  const std::size_t a = Unita(Byte(posizione), unita).Fine();
  const Selezione nessuna{.Inizio = a, .Lunghezza = 0};
  return Consegna(a == Testo().Testo().size() ? nessuna : Unita(a, unita), inizio, fine);
}

QRect ricAccessibile::characterRect(int posizione) const {
  const QRect rettangolo = Pannello().RettangoloDi(Byte(posizione));
  return {Pannello().viewport()->mapToGlobal(rettangolo.topLeft()), rettangolo.size()};
}

int ricAccessibile::offsetAtPoint(const QPoint& punto) const {
  return Posizione(Pannello().CarattereA(Pannello().viewport()->mapFromGlobal(punto)));
}

void ricAccessibile::scrollToSubstring(int inizio, int fine) {
  Pannello().Rivela(Byte(fine));
  Pannello().Rivela(Byte(inizio));
}

QString ricAccessibile::attributes(int posizione, int* inizio, int* fine) const {
  const std::size_t byte = Byte(posizione);
  const auto tratti = Testo().TrattiIn(byte, byte + 1);
  if (tratti.empty()) {
    *inizio = *fine = posizione;
  } else {
    *inizio = Posizione(tratti.front().Inizio);
    *fine = Posizione(tratti.front().Inizio + tratti.front().Lunghezza);
  }
  const Aspetto aspetto = Testo().AspettoDi(byte);
  return QStringLiteral("font-family:\"%1\";font-size:%2pt;font-weight:%3;font-style:%4;%5")
      .arg(QFontInfo(Pannello().font()).family())
      .arg(Punti(aspetto.Corpo))
      .arg(aspetto.Grassetto ? "bold" : "normal", aspetto.Italico ? "italic" : "normal",
           // Screen readers are told the type; the style alone says how a line would look.
           aspetto.Sottolineato ? "text-underline-style:solid;text-underline-type:single;" : "");
}

}  // namespace parvik
