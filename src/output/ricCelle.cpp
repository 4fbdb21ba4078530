#include "output/ricCelle.h"

#include <QGlyphRun>
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "common/Windows1252.h"
#include "common/qtTesto.h"
#include "output/Foglio.h"

namespace parvik {
namespace {

constexpr double Tolleranza = 0.01;      // in parts of a cell: advances are rounded
constexpr int PixelPerMisurare = 2'048;  // of a character that is measured as it was designed

}  // namespace

QFont CarattereAnteprima() {
  QFont carattere(QStringList{"Lucida Console", "Liberation Mono", "DejaVu Sans Mono"});
  carattere.setStyleHint(QFont::TypeWriter);
  carattere.setFixedPitch(true);
  carattere.setPointSizeF(Punti(CorpoCarattere::Disegno));
  return carattere;
}

Celle::Celle(const QFont& base, const QPaintDevice* schermo, bool comeSono)
    : base_(base), schermo_(schermo), comeSono_(comeSono) {}

QFont Celle::ConAspetto(const Aspetto& aspetto) const {
  QFont carattere = base_;
  carattere.setWeight(aspetto.Grassetto ? QFont::Bold : QFont::Normal);
  carattere.setItalic(aspetto.Italico);
  // No ligatures: a cell holds one character.
  carattere.setStyleStrategy(
      static_cast<QFont::StyleStrategy>(carattere.styleStrategy() | QFont::PreferNoShaping));
  if (schermo_ != nullptr) {
    if (!comeSono_) carattere.setPointSizeF(Punti(aspetto.Corpo) * scala_);
    return {carattere, schermo_};
  }
  carattere.setPixelSize(static_cast<int>(std::lround(Punti(aspetto.Corpo) * TwipPerPunto)));
  carattere.setHintingPreference(QFont::PreferNoHinting);
  return carattere;
}

QFontMetricsF Celle::Misure(const QFont& carattere) const {
  return schermo_ != nullptr ? QFontMetricsF(carattere, schermo_) : QFontMetricsF(carattere);
}

/// The width of a cell: of a character of the normal or the compressed size without emphasis.
qreal Celle::Passo(CorpoCarattere corpo) const {
  const bool compresso = corpo == CorpoCarattere::Compresso;
  QFont carattere = ConAspetto({.Corpo = compresso ? corpo : CorpoCarattere::Normale});
  if (schermo_ != nullptr) return Misure(carattere).horizontalAdvance(u'M');
  const int corpoInTwip = carattere.pixelSize();
  carattere.setPixelSize(PixelPerMisurare);  // at its own size it would be rounded
  return Misure(carattere).horizontalAdvance(u'M') * corpoInTwip / PixelPerMisurare;
}

Celle::Faccia& Celle::FacciaDi(const Aspetto& aspetto) const {
  std::optional<Faccia>& faccia = facce_[IndiceDi(aspetto)];
  if (!faccia) {
    const QFont carattere = ConAspetto(aspetto);
    const QFontMetricsF misure = Misure(carattere);
    faccia = Faccia{.Carattere = carattere,
                    .Segni = QRawFont::fromFont(carattere),
                    .Avanzamento = Passo(aspetto.Corpo),
                    .Propria = misure.horizontalAdvance(u'M'),
                    .Ascesa = std::ceil(misure.ascent()),
                    .Discesa = std::ceil(misure.descent()),
                    .Larghezze = {}};
  }
  return *faccia;
}

const QFont& Celle::Carattere(const Aspetto& aspetto) const {
  return FacciaDi(aspetto).Carattere;
}

qreal Celle::Avanzamento(const Aspetto& aspetto) const {
  return FacciaDi(aspetto).Avanzamento;
}

qreal Celle::Ascesa(const Aspetto& aspetto) const {
  return FacciaDi(aspetto).Ascesa;
}

qreal Celle::Discesa(const Aspetto& aspetto) const {
  return FacciaDi(aspetto).Discesa;
}

/// Most characters are as wide as the font's others and are drawn together. A stand-in may come from another
/// font, with an underline at another height.
bool Celle::StaNellaCella(Faccia& faccia, char byte, QChar segno) const {
  const auto numero = static_cast<unsigned char>(byte);
  Larghezza& larghezza = faccia.Larghezze[numero];
  if (larghezza == Larghezza::Ignota) {
    const qreal misura = Misure(faccia.Carattere).horizontalAdvance(segno);
    const qreal ammessa = Tolleranza * faccia.Avanzamento;
    const bool uguale = std::abs(misura - faccia.Propria) <= ammessa;
    const bool ciSta = misura <= faccia.Avanzamento + ammessa;
    const bool sostituto = segno != QChar(UnicodeDiAnsi[numero]) || !faccia.Segni.supportsCharacter(segno);
    larghezza = uguale && ciSta && !sostituto ? Larghezza::Cella : Larghezza::Propria;
  }
  return larghezza == Larghezza::Cella;
}

void Celle::Disegna(QPainter& pittore, QPointF base, std::string_view byte, const Aspetto& aspetto) const {
  Faccia& faccia = FacciaDi(aspetto);
  QString insieme = PerSchermo(byte);
  std::vector<std::pair<std::size_t, QChar>> stretti;
  for (std::size_t i = 0; i < byte.size(); ++i) {
    QChar& segno = insieme[static_cast<qsizetype>(i)];
    if (segno == QChar::SoftHyphen) segno = u'-';  // it would not be drawn
    if (StaNellaCella(faccia, byte[i], segno)) continue;
    stretti.emplace_back(i, segno);
    segno = u' ';
  }
  DisegnaNelleCelle(pittore, base, insieme, faccia);
  if (aspetto.Sottolineato) Sottolinea(pittore, base, byte.size(), faccia);
  for (const auto& [i, segno] : stretti) {
    DisegnaStretto(pittore, base + QPointF(static_cast<qreal>(i) * faccia.Avanzamento, 0), segno, faccia);
  }
}

/// Each at the left edge of its cell: widths of characters, which fonts round, are not added up.
void Celle::DisegnaNelleCelle(QPainter& pittore, QPointF base, const QString& segni, const Faccia& faccia) {
  const QList<quint32> glifi = faccia.Segni.glyphIndexesForString(segni);
  QList<QPointF> posti;
  posti.reserve(glifi.size());
  for (qsizetype i = 0; i < glifi.size(); ++i)
    posti.emplace_back(static_cast<qreal>(i) * faccia.Avanzamento, 0);
  QGlyphRun fila;
  fila.setRawFont(faccia.Segni);
  fila.setGlyphIndexes(glifi);
  fila.setPositions(posti);
  pittore.drawGlyphRun(base, fila);
}

/// One line under all of them, whatever fonts they come from.
void Celle::Sottolinea(QPainter& pittore, QPointF base, std::size_t celle, const Faccia& faccia) const {
  const QFontMetricsF misure = Misure(faccia.Carattere);
  const qreal y = base.y() + std::ceil(misure.underlinePos());
  const qreal destra = base.x() + static_cast<qreal>(celle) * faccia.Avanzamento;
  pittore.save();
  pittore.setPen(QPen(pittore.pen().color(), misure.lineWidth(), Qt::SolidLine, Qt::FlatCap));
  pittore.drawLine(QPointF(std::floor(base.x()), y), QPointF(std::floor(destra), y));
  pittore.restore();
}

/// A character in the middle of its cell, made narrower when it does not fit.
void Celle::DisegnaStretto(QPainter& pittore, QPointF base, QChar segno, const Faccia& faccia) const {
  const qreal larghezza = Misure(faccia.Carattere).horizontalAdvance(segno);
  const qreal scala = larghezza > faccia.Avanzamento ? faccia.Avanzamento / larghezza : 1;
  pittore.save();
  pittore.setFont(faccia.Carattere);
  pittore.translate(base.x() + (faccia.Avanzamento - larghezza * scala) / 2, base.y());
  pittore.scale(scala, 1);
  pittore.drawText(QPointF(), segno);
  pittore.restore();
}

double CellaSuCarta() {
  const qreal twip = Celle::SuCarta(CarattereAnteprima()).Avanzamento({.Corpo = CorpoCarattere::Normale});
  return twip * DecimiPerPollice / TwipPerPollice;
}

AltezzeRiga AltezzeDi(const TestoAnteprima& testo, std::size_t riga, const Celle& celle) {
  const std::size_t inizio = testo.InizioRiga(riga);
  const std::size_t termine = testo.TermineRiga(riga);
  AltezzeRiga altezze;
  const auto contiene = [&altezze, &celle](const Aspetto& aspetto) {
    altezze.Ascesa = std::max(altezze.Ascesa, celle.Ascesa(aspetto));
    altezze.Discesa = std::max(altezze.Discesa, celle.Discesa(aspetto));
  };
  if (inizio == termine) {
    contiene(testo.AspettoDi(termine));
    return altezze;
  }
  const auto prima = testo.Conta(inizio);
  const auto dopo = testo.Conta(termine);
  for (std::size_t i = 0; i < NumAspetti; ++i) {
    if (dopo[i] > prima[i]) contiene(AspettoDiIndice(i));
  }
  return altezze;
}

namespace {

/// The columns of a line and their left edges.
class Colonne {
 public:
  Colonne(const TestoAnteprima& testo, std::size_t riga, const Celle& celle)
      : testo_(testo),
        celle_(celle),
        inizio_(testo.InizioRiga(riga)),
        quante_(testo.TermineRiga(riga) - inizio_),
        prima_(testo.Conta(inizio_)) {}

  std::size_t Quante() const { return quante_; }

  qreal X(std::size_t colonna) const {
    const auto fino = testo_.Conta(inizio_ + std::min(colonna, quante_));
    qreal x = 0;
    for (std::size_t i = 0; i < NumAspetti; ++i) {
      if (fino[i] > prima_[i])
        x += static_cast<qreal>(fino[i] - prima_[i]) * celle_.Avanzamento(AspettoDiIndice(i));
    }
    return x;
  }

 private:
  const TestoAnteprima& testo_;
  const Celle& celle_;
  std::size_t inizio_;
  std::size_t quante_;
  PerAspetto<std::size_t> prima_;
};

}  // namespace

qreal XDi(const TestoAnteprima& testo, std::size_t riga, std::size_t colonna, const Celle& celle) {
  return Colonne(testo, riga, celle).X(colonna);
}

std::size_t ColonnaA(const TestoAnteprima& testo, std::size_t riga, qreal x, const Celle& celle) {
  const Colonne colonne(testo, riga, celle);
  if (x < 0) return 0;
  std::size_t da = 0;  // its left edge is not behind x
  std::size_t a = colonne.Quante() + 1;
  while (a - da > 1) {
    const std::size_t mezzo = da + (a - da) / 2;
    (colonne.X(mezzo) <= x ? da : a) = mezzo;
  }
  return da;
}

std::size_t ColonnaVicina(const TestoAnteprima& testo, std::size_t riga, qreal x, const Celle& celle) {
  const std::size_t colonna = ColonnaA(testo, riga, x, celle);
  const qreal sinistra = XDi(testo, riga, colonna, celle);
  const qreal destra = XDi(testo, riga, colonna + 1, celle);
  return destra > sinistra && x >= (sinistra + destra) / 2 ? colonna + 1 : colonna;
}

std::size_t DisegnaRiga(QPainter& pittore, QPointF base, const TestoAnteprima& testo, std::size_t riga,
                        std::size_t da, std::size_t a, const Celle& celle) {
  const std::size_t inizio = testo.InizioRiga(riga);
  const std::size_t fine = inizio + std::min(a, testo.TermineRiga(riga) - inizio);
  std::size_t p = inizio + da;
  if (p >= fine) return 0;
  base.rx() += XDi(testo, riga, da, celle);
  const std::size_t disegnati = fine - p;
  const auto finoA = [&](std::size_t termine, const Aspetto& aspetto) {
    if (termine <= p) return;
    celle.Disegna(pittore, base, testo.Testo().substr(p, termine - p), aspetto);
    base.rx() += static_cast<qreal>(termine - p) * celle.Avanzamento(aspetto);
    p = termine;
  };
  for (const Tratto& tratto : testo.TrattiIn(p, fine)) {
    finoA(tratto.Inizio, Aspetto());  // what no run covers
    finoA(std::min(tratto.Inizio + tratto.Lunghezza, fine), tratto.Come);
  }
  finoA(fine, Aspetto());
  return disegnati;
}

}  // namespace parvik
