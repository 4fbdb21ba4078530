// What a person can read in a dialog.
#pragma once

#include <QSet>
#include <QString>
#include <QWidget>

namespace parvik::prova {

/// The texts of everything that shows in a dialog or can be made to show by its tabs and lists, tool tips and
/// accessible names too, without the marks of access keys. Turns the tabs over.
QSet<QString> TestiDi(QWidget& dialogo);

}  // namespace parvik::prova
