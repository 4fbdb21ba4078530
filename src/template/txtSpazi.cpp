#include "template/txtSpazi.h"

#include <QFontMetricsF>
#include <cmath>

#include "common/qtTesto.h"

namespace parvik {
namespace {

/// The toolkit draws none, and adds no room to it.
constexpr char SillabazioneMorbida = '\xAD';

int Misurato(const QFont& carattere, const QString& testo) {
  return static_cast<int>(
      std::lround(QFontMetricsF(carattere).horizontalAdvance(testo) * ParticellePerPixel));
}

/// The quotient rounded down, whatever the sign.
int Quoziente(int valore, int divisore) {
  return valore >= 0 ? valore / divisore : -((-valore + divisore - 1) / divisore);
}

}  // namespace

txtSpazi::txtSpazi(const CampiAMisura& campi, Sezione sezione, const QFont& carattere)
    : campi_(campi),
      sezione_(sezione),
      carattere_(carattere),
      cella_(Misurato(carattere, QStringLiteral("M"))) {}

txtSpazi::Riga txtSpazi::Per(std::size_t riga, std::string_view byte) const {
  const RigaMisurata misurata = campi_.Riga(sezione_, riga);
  Riga spaziata{.Tratti = {}, .Lascito = misurata.Lascito};
  for (const PezzoMisurato& pezzo : misurata.Pezzi) {
    if (pezzo.Codice) {
      SpaziaCodice(pezzo, byte, spaziata.Tratti);
    } else {
      SpaziaTesto(pezzo, byte, spaziata.Tratti);
    }
  }
  return spaziata;
}

int txtSpazi::AvanzamentoDi(char byte) const {
  auto& avanzamento = avanzamenti_[static_cast<unsigned char>(byte)];
  if (!avanzamento)
    avanzamento = byte == SillabazioneMorbida ? 0 : Misurato(carattere_, PerSchermo({&byte, 1}));
  return *avanzamento;
}

/// The same room behind each of its characters; what is left of the division behind the first ones.
void txtSpazi::SpaziaCodice(const PezzoMisurato& pezzo, std::string_view byte,
                            std::vector<TrattoSpaziato>& tratti) const {
  int naturale = 0;
  int segni = 0;
  for (const char c : byte.substr(pezzo.Parte.Inizio, pezzo.Parte.Lunghezza)) {
    naturale += AvanzamentoDi(c);
    segni += c == SillabazioneMorbida ? 0 : 1;
  }
  const int manca = static_cast<int>(pezzo.Celle()) * cella_ - naturale;
  const int ciascuno = Quoziente(manca, segni);
  int resto = manca - ciascuno * segni;
  int primi = 0;  // characters that take the rest
  for (; resto > 0; ++primi)
    if (byte[pezzo.Parte.Inizio + static_cast<std::size_t>(primi)] != SillabazioneMorbida) --resto;
  const int inizio = static_cast<int>(pezzo.Parte.Inizio);
  const int quanti = static_cast<int>(pezzo.Parte.Lunghezza);
  if (primi > 0) tratti.push_back({.Inizio = inizio, .Quanti = primi, .Spazio = ciascuno + 1});
  if (quanti > primi)
    tratti.push_back({.Inizio = inizio + primi, .Quanti = quanti - primi, .Spazio = ciascuno});
}

/// What is no cell wide by itself. A soft hyphen has its cell behind the character in front of it.
void txtSpazi::SpaziaTesto(const PezzoMisurato& pezzo, std::string_view byte,
                           std::vector<TrattoSpaziato>& tratti) const {
  for (std::size_t i = pezzo.Parte.Inizio; i < pezzo.Parte.Fine(); ++i) {
    if (byte[i] == SillabazioneMorbida) continue;
    int celle = 1;
    while (i + static_cast<std::size_t>(celle) < pezzo.Parte.Fine() &&
           byte[i + static_cast<std::size_t>(celle)] == SillabazioneMorbida)
      ++celle;
    const int manca = celle * cella_ - AvanzamentoDi(byte[i]);
    if (manca != 0) tratti.push_back({.Inizio = static_cast<int>(i), .Quanti = 1, .Spazio = manca});
  }
}

}  // namespace parvik
