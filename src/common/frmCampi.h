// The ways of the small text boxes of the dialogs.
#pragma once

#include <QString>

class QLineEdit;

namespace parvik {

/// Selects the whole text of a box (caret to 0, length to the text's) each time the box gets the focus.
void SelezionaTuttoAlFuoco(QLineEdit& campo);

/// Lets the user type and paste digits only, and the characters of `altri`, up to `massimo` of them. A text
/// that the program puts into the box stays as it is, whatever it holds, until the user edits it: see
/// ImpostaComeSta.
void SoloCifre(QLineEdit& campo, int massimo, const QString& altri = QString());

/// Puts a text into a box of SoloCifre as it stands, unchecked and uncut.
void ImpostaComeSta(QLineEdit& campo, const QString& testo);

/// Keeps the text of a box legible although it is disabled, in every palette.
void RendiLeggibile(QLineEdit& campo);

/// Makes a box ready to show a code: columns of one width, and legible although it is disabled, in every
/// palette.
void MostraCodici(QLineEdit& campo);

}  // namespace parvik
