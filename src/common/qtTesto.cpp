#include "common/qtTesto.h"

#include <QTextDocument>
#include <algorithm>
#include <array>
#include <unordered_map>

#include "common/Delimitatori.h"
#include "common/Windows1252.h"

namespace parvik {
namespace {

constexpr char16_t ImmaginiControllo = 0x2400;  // the pictures of the control characters, in their order
constexpr char16_t ImmagineCancellazione = 0x2421;

/// A byte's character on the screen.
constexpr char16_t Immagine(unsigned int byte, char16_t unicode) {
  switch (byte) {
    case 0x7F:
      return ImmagineCancellazione;
    case 0x81:
      return 0x2341;  // boxes with different strokes
    case 0x8D:
      return 0x2342;
    case 0x8F:
      return 0x2343;
    case 0x90:
      return 0x2344;
    case 0x9D:
      return 0x2347;
    default:
      return byte < 0x20 ? static_cast<char16_t>(ImmaginiControllo + byte) : unicode;
  }
}

const std::array<char16_t, 256>& Immagini() {
  static const auto tabella = [] {
    std::array<char16_t, 256> immagini = {};
    for (std::size_t i = 0; i < immagini.size(); ++i) {
      immagini[i] = Immagine(static_cast<unsigned int>(i), UnicodeDiAnsi[i]);
    }
    return immagini;
  }();
  return tabella;
}

const std::unordered_map<char16_t, char>& Byte() {
  static const auto tabella = [] {
    std::unordered_map<char16_t, char> inversa;
    for (std::size_t i = 0; i < Immagini().size(); ++i) {
      const char byte = static_cast<char>(static_cast<unsigned char>(i));
      inversa.emplace(Immagini()[i], byte);
      inversa.emplace(UnicodeDiAnsi[i], byte);  // as it may be typed or pasted
    }
    return inversa;
  }();
  return tabella;
}

bool FinisceRiga(QChar c) {
  return c == u'\n' || c == QChar::ParagraphSeparator || c == QChar::LineSeparator;
}

/// A control character, or its picture.
constexpr bool Mostrato(char16_t qui, char16_t controllo) {
  return qui == controllo || qui == ImmaginiControllo + controllo;
}

/// LF, VT, FF, CR and their pictures, and what else ends a line in Unicode.
constexpr bool InterrompeRiga(char16_t qui) {
  if (qui == 0x85 || qui == 0x2028 || qui == 0x2029) return true;
  const char16_t controllo = qui > ImmaginiControllo ? static_cast<char16_t>(qui - ImmaginiControllo) : qui;
  return controllo >= u'\n' && controllo <= u'\r';
}

}  // namespace

QString PerSchermo(std::string_view ansi) {
  QString testo;
  testo.reserve(static_cast<qsizetype>(ansi.size()));
  for (std::size_t i = 0; i < ansi.size(); ++i) {
    if (ansi.substr(i, FineRiga.size()) == FineRiga) {
      testo += u'\n';
      ++i;
    } else {
      testo += QChar(Immagini()[static_cast<unsigned char>(ansi[i])]);
    }
  }
  return testo;
}

std::string DaSchermo(const QString& testo) {
  std::string ansi;
  ansi.reserve(static_cast<std::size_t>(testo.size()));
  for (const QChar c : testo) {
    if (c >= u' ' && c <= u'~') {  // almost all there is, and the same on both sides
      ansi += c.toLatin1();
    } else if (FinisceRiga(c)) {
      ansi.append(FineRiga);
    } else if (const auto byte = Byte().find(c.unicode()); byte != Byte().end()) {
      ansi += byte->second;
    } else if (!c.isLowSurrogate()) {
      ansi += '?';
    }
  }
  return ansi;
}

std::string DaAltrove(const QString& testo) {
  return DaSchermo(QString(testo).replace("\r\n", "\n").replace('\r', '\n'));
}

QString InUnicode(std::string_view ansi) {
  QString testo(static_cast<qsizetype>(ansi.size()), Qt::Uninitialized);
  std::ranges::transform(ansi, testo.begin(),
                         [](char byte) { return QChar(UnicodeDiAnsi[static_cast<unsigned char>(byte)]); });
  return testo;
}

QString SoloAnsi(const QString& testo) {
  return PerSchermo(DaSchermo(testo));
}

QString InUnaRiga(const QString& testo) {
  QString riga;
  riga.reserve(testo.size());
  for (qsizetype i = 0; i < testo.size(); ++i) {
    const char16_t qui = testo[i].unicode();
    riga += InterrompeRiga(qui) ? u' ' : testo[i];
    const bool coppia =
        Mostrato(qui, u'\r') && i + 1 < testo.size() && Mostrato(testo[i + 1].unicode(), u'\n');
    if (coppia) ++i;
  }
  return riga;
}

QString PerSuggerimento(const QString& testo) {
  if (!Qt::mightBeRichText(testo)) return testo;
  return "<p>" + testo.toHtmlEscaped().replace('\n', "<br>") + "</p>";
}

QString DaUtf8(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())).replace("\r\n", "\n");
}

}  // namespace parvik
