// The status bar: where the caret is, here and on paper, what stands there, and what the preview shows
// (docs/barra-di-stato.md).
#pragma once

#include <QStatusBar>
#include <array>
#include <cstddef>

#include "app/lblBarra.h"
#include "editor/StatoBarra.h"

namespace parvik {

class barStato final : public QStatusBar {
  Q_OBJECT

 public:
  explicit barStato(QWidget* padre);

  void Mostra(const TestiBarra& testi);

 protected:
  void changeEvent(QEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;

 private:
  static constexpr std::size_t NumCampi = 7;

  void Misura();
  bool Allarga(std::size_t campo);
  void Disponi();

  std::array<lblBarra*, NumCampi> campi_ = {};
  std::array<int, NumCampi> larghezze_ = {};  // what a field takes; 0 of those that share the rest
};

}  // namespace parvik
