// What may come into a one-line text box, by whatever way it comes.
#pragma once

#include <QClipboard>
#include <QString>
#include <QValidator>
#include <functional>

class QContextMenuEvent;
class QDropEvent;
class QInputMethodEvent;
class QKeyEvent;
class QLineEdit;

namespace parvik {

/// Watches over what comes in; what is in the box is left alone. Typing, pasting, dropping and input methods
/// are filtered before the box sees their text, so that the box can undo them; whatever else changes the
/// box's text (an assistive technology, the program) is filtered afterwards.
class qtFiltro final : public QValidator {
 public:
  /// What of a text may come in, in the form in which it does.
  using Regola = std::function<QString(const QString& entrato)>;

  /// The box owns the filter and takes no more than `massimo` characters; with 0 it shows what the program
  /// puts there, and nothing can change that.
  qtFiltro(QLineEdit& campo, int massimo, Regola regola);

  /// The program puts `testo` into the box as it stands; undoing may bring it back.
  void AmmettiComeSta(const QString& testo) { comeSta_ = testo; }

  bool eventFilter(QObject* oggetto, QEvent* evento) override;
  State validate(QString& testo, int& cursore) const override;

 private:
  // Each filters one way in; true when there is nothing left to do for the box.
  bool Tasto(const QKeyEvent& tasto);
  bool Incolla(QClipboard::Mode appunti);
  bool IncollaSelezione();
  bool Lascia(QDropEvent& evento);
  bool ApriMenu(const QContextMenuEvent& evento);

  void Componi(QInputMethodEvent& evento) const;
  void ChiudiPasso();
  QString Entrano(const QString& nuovo, qsizetype resto) const;
  QString EntranoAlCursore(const QString& nuovo) const;
  qsizetype InizioComune(QStringView testo, qsizetype dopo) const;

  QLineEdit& campo_;
  int massimo_;
  Regola regola_;
  QString prima_;    // the text before the edit
  QString comeSta_;  // what AmmettiComeSta said
};

}  // namespace parvik
