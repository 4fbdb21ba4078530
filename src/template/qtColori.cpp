#include "template/qtColori.h"

#include <QGuiApplication>
#include <QPalette>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

#include "common/Delimitatori.h"
#include "common/qtTesto.h"
#include "common/qtTinte.h"

namespace parvik {
namespace {

constexpr double ForzaCampo = 0.1;  // how much of its colour is in a field

// By TipoCodice. Far apart in hue; light and dark sets give a kind the same hue.
constexpr auto TinteSuChiaro =
    std::to_array<QRgb>({0xFFC0122F, 0xFF0B4FC4, 0xFF176B2C, 0xFF944200, 0xFF7D1FA8, 0xFF00656F, 0xFF66610A});
constexpr auto TinteSuScuro =
    std::to_array<QRgb>({0xFFFF8585, 0xFF8AB4F8, 0xFF7FD08F, 0xFFFBA35C, 0xFFD7A5FB, 0xFF5FD9E6, 0xFFDCCB4E});
static_assert(TinteSuChiaro.size() == NumTipiCodice && TinteSuScuro.size() == NumTipiCodice);

/// What the toolkit keeps with a line: whether a code is open at its end, and of which kind.
constexpr int NessunoAperto = 0;

int StatoDi(TipoCodice tipo) {
  return static_cast<int>(tipo) + 1;
}

/// One byte for each character of a line.
std::string Byte(const QString& riga) {
  std::string byte = DaSchermo(riga);
  byte.resize(static_cast<std::size_t>(riga.size()), ' ');  // places stay, whatever was in it
  return byte;
}

}  // namespace

qtColori::qtColori(QTextDocument* documento, const txtSpecchio& specchio)
    : QSyntaxHighlighter(documento), specchio_(specchio) {
  ImpostaTavolozza(QGuiApplication::palette());
}

void qtColori::ColoraDa(int riga) {
  // Colouring counts as an edit to the toolkit: whoever listens for changes would hear one.
  const QSignalBlocker muto(document());
  rehighlightBlock(document()->findBlockByNumber(riga));
}

void qtColori::ImpostaTavolozza(const QPalette& tavolozza) {
  const QRgb base = tavolozza.color(QPalette::Base).rgb();
  const QRgb estremo = Estremo(base);
  const bool chiaro = estremo == Nero;
  const QRgb fondo = FondoSu(base, tavolozza.color(QPalette::Highlight).rgb(), estremo);
  const auto& tinte = chiaro ? TinteSuChiaro : TinteSuScuro;
  const auto prima = formati_;
  for (std::size_t i = 0; i < formati_.size(); ++i) {
    formati_[i].setForeground(QColor(Leggibile(tinte[i], estremo, base, fondo)));
  }
  fondo_ = fondo;
  for (std::size_t i = 0; i < formati_.size(); ++i) {
    const QRgb tinta = formati_[i].foreground().color().rgb();
    const QRgb velato = Misto(base, tinta, ForzaCampo);
    fondiCampo_[i] = Contrasto(tinta, velato) >= ContrastoMinimo ? velato : base;
  }
  if (formati_ == prima) return;
  const QSignalBlocker muto(document());
  rehighlight();
}

QColor qtColori::Colore(TipoCodice tipo) const {
  return formati_[static_cast<std::size_t>(tipo)].foreground().color();
}

/// The kind of the code that is open where the line begins. The line in front of it knows, but for the first
/// one that is coloured anew.
std::optional<TipoCodice> qtColori::CodiceAperto() const {
  const int stato = previousBlockState();
  if (stato <= NessunoAperto) return std::nullopt;
  return static_cast<TipoCodice>(stato - 1);
}

/// Whether a code that is open at the end of this line is closed in a later one.
bool qtColori::ChiusoPiuAvanti() const {
  const QTextBlock riga = currentBlock();
  const std::size_t fine = specchio_.InByte(riga.position() + riga.length() - 1);
  return specchio_.Testo().Seguente(Segno::Chiusura, fine).has_value();
}

void qtColori::Colora(std::size_t inizio, std::size_t fine, TipoCodice tipo) {
  setFormat(static_cast<int>(inizio), static_cast<int>(fine - inizio),
            formati_[static_cast<std::size_t>(tipo)]);
}

void qtColori::highlightBlock(const QString& riga) {
  const std::string byte = Byte(riga);
  ColoraCodici(byte);
  if (spazi_ != nullptr) {
    SpaziaRiga(byte);
  } else if (currentBlockUserData() != nullptr) {
    setCurrentBlockUserData(nullptr);
  }
}

void qtColori::ColoraCodici(std::string_view byte) {
  std::size_t qui = 0;
  setCurrentBlockState(NessunoAperto);
  if (const auto aperto = CodiceAperto()) {
    const std::size_t chiusura = byte.find(DelimChiusura);
    qui = chiusura == std::string::npos ? byte.size() : chiusura + 1;
    Colora(0, qui, *aperto);
    if (chiusura == std::string::npos) return setCurrentBlockState(StatoDi(*aperto));
  }
  while (qui < byte.size()) {
    const ConfiniCodice codice = ProssimoCodice(byte, qui);
    if (codice.Apertura == byte.size()) return;
    const bool aperto = codice.Chiusura == byte.size();
    if (aperto && !ChiusoPiuAvanti()) return;
    const TipoCodice tipo =
        Riconosci(byte.substr(codice.Apertura + 1, codice.Chiusura - codice.Apertura - 1));
    qui = std::min(codice.Chiusura + 1, byte.size());
    Colora(codice.Apertura, qui, tipo);
    if (aperto) setCurrentBlockState(StatoDi(tipo));
  }
}

/// Nothing while the toolkit is ahead of the section: it is coloured again when that has followed.
void qtColori::SpaziaRiga(std::string_view byte) {
  const auto riga = static_cast<std::size_t>(currentBlock().blockNumber());
  const TestoSezione& testo = specchio_.Testo();
  if (riga >= testo.Righe() || testo.Riga(riga).Lunghezza != byte.size()) return;
  const txtSpazi::Riga spaziata = spazi_->Per(riga, byte);
  for (const TrattoSpaziato& tratto : spaziata.Tratti) {
    QTextCharFormat formato = format(tratto.Inizio);
    formato.setFontLetterSpacingType(QFont::AbsoluteSpacing);
    formato.setFontLetterSpacing(static_cast<qreal>(tratto.Spazio) / ParticellePerPixel);
    setFormat(tratto.Inizio, tratto.Quanti, formato);
  }
  Ricorda(spaziata.Lascito);
  // A code that is open here prints something where it is closed.
  if (currentBlockState() == NessunoAperto) return;
  const auto chiusura = testo.Seguente(Segno::Chiusura, testo.Riga(riga).Fine());
  if (chiusura) daSeguire_.insert(static_cast<int>(testo.RigaDi(*chiusura)));
}

void qtColori::Ricorda(const LascitoRiga& lascito) {
  const int riga = currentBlock().blockNumber();
  daSeguire_.erase(riga);
  auto* prima = static_cast<LascitoNellaRiga*>(currentBlockUserData());
  if (prima == nullptr) return setCurrentBlockUserData(new LascitoNellaRiga(lascito));  // the line owns it
  if (prima->Quale == lascito) return;
  prima->Quale = lascito;
  daSeguire_.insert(riga + 1);
}

void qtColori::Prosegui() {
  while (!daSeguire_.empty()) {
    const int riga = daSeguire_.extract(daSeguire_.begin()).value();
    const QTextBlock seguente = document()->findBlockByNumber(riga);
    if (seguente.isValid() && Spaziata(seguente)) ColoraDa(riga);
  }
}

}  // namespace parvik
