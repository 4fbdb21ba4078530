// Regular expressions for the search, by the toolkit's engine (docs/ricerca.md).
#pragma once

#include <QRegularExpression>
#include <QString>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "cerca/Espressione.h"

namespace parvik {

class qtEspressione final : public Espressione {
 public:
  /// CompilaEspressione.
  static Esito<std::unique_ptr<Espressione>, std::string> Compila(const Criterio& criterio);

  void Leggi(std::string_view testo) override;
  EsitoConfronto Trova(std::size_t da, std::size_t fine) override;
  const std::vector<Selezione>& Gruppi() const override { return gruppi_; }

 private:
  explicit qtEspressione(QRegularExpression regola) : regola_(std::move(regola)) {}

  QRegularExpression regola_;
  QString testo_;
  std::vector<Selezione> gruppi_;
};

}  // namespace parvik
