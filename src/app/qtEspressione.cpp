#include "app/qtEspressione.h"

#include <utility>

#include "common/qtTesto.h"

namespace parvik {
namespace {

/// Steps that a single match may take: some hundredths of a second. A longer one runs away.
constexpr const char* Limite = "(*LIMIT_MATCH=1000000)";

}  // namespace

Esito<std::unique_ptr<Espressione>, std::string> qtEspressione::Compila(const Criterio& criterio) {
  const QString scritta = DaUtf8(criterio.Testo);
  const QRegularExpression::PatternOptions opzioni =
      QRegularExpression::UseUnicodePropertiesOption |
      (criterio.Maiuscole ? QRegularExpression::NoPatternOption : QRegularExpression::CaseInsensitiveOption);
  // As it stands first: what is wrong with it has its place there.
  const QRegularExpression prova(scritta, opzioni);
  if (!prova.isValid())
    return "Espressione non valida (carattere " + std::to_string(prova.patternErrorOffset() + 1) + ")";
  const QString intera = criterio.Parola ? "\\b(?:" + scritta + ")\\b" : scritta;
  QRegularExpression regola(Limite + intera, opzioni);
  if (!regola.isValid()) return std::string("Espressione non valida");
  regola.optimize();
  return std::unique_ptr<Espressione>(new qtEspressione(std::move(regola)));
}

void qtEspressione::Leggi(std::string_view testo) {
  testo_ = InUnicode(testo);
}

EsitoConfronto qtEspressione::Trova(std::size_t da, std::size_t fine) {
  const QRegularExpressionMatch trovata =
      regola_.match(QStringView(testo_).first(static_cast<qsizetype>(fine)), static_cast<qsizetype>(da),
                    QRegularExpression::NormalMatch, QRegularExpression::DontCheckSubjectStringMatchOption);
  if (!trovata.isValid()) return EsitoConfronto::TroppoLunga;
  if (!trovata.hasMatch()) return EsitoConfronto::Niente;
  gruppi_.clear();
  for (int gruppo = 0; gruppo <= trovata.lastCapturedIndex(); ++gruppo) {
    if (trovata.capturedStart(gruppo) < 0) {
      gruppi_.push_back({});
    } else {
      gruppi_.push_back({.Inizio = static_cast<std::size_t>(trovata.capturedStart(gruppo)),
                         .Lunghezza = static_cast<std::size_t>(trovata.capturedLength(gruppo))});
    }
  }
  return EsitoConfronto::Trovata;
}

}  // namespace parvik
