// What every dialog that builds a code has in common: it takes the content of a code, and gives codes.
#pragma once

#include <QLabel>
#include <string>
#include <string_view>
#include <vector>

#include "common/frmModale.h"

namespace parvik {

class frmCodice : public frmModale {
  Q_OBJECT

 public:
  using frmModale::frmModale;

  /// Fills the controls from the content of an existing code (Windows-1252, without delimiters). Before exec,
  /// and only for an existing code: a dialog for a new one starts from its defaults.
  virtual void Mostra(std::string_view contenuto) = 0;

  /// What OK hands to the section, in this order, delimiters included; an empty text is inserted too. Empty
  /// after Cancel, and where there is nothing to insert.
  virtual std::vector<std::string> Codici() const = 0;

 protected:
  /// Says in `riga` that the code names something that the section does not have, `quale`, and what OK would
  /// make of it: `codice`, "" for nothing. While it says so OK is not the default button: Enter must not
  /// change the code unasked.
  void AvvisaManca(QLabel& riga, const QString& quale, const QString& codice);
  /// The user has chosen or changed something: nothing is unasked any more.
  void TogliAvviso();

 private:
  QLabel* avviso_ = nullptr;  // while it is shown
};

}  // namespace parvik
