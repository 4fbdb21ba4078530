// The ways of the small text boxes of the dialogs.
#pragma once

#include <QString>
#include <limits>

class QLineEdit;

namespace parvik {

/// Selects the whole text of a box (caret to 0, length to the text's) each time the box gets the focus.
void SelezionaTuttoAlFuoco(QLineEdit& campo);

inline constexpr int SenzaLimite = std::numeric_limits<int>::max();

// What may come into a box, by typing, pasting, dropping, an input method or an assistive technology. Each
// box of a dialog has one of these.

/// Digits only, and the characters of `altri`, up to `massimo` of them.
void SoloCifre(QLineEdit& campo, int massimo, const QString& altri = QString());

/// Any text, in one line: what ends a line comes in as a space.
void UnaRiga(QLineEdit& campo);

/// A text that goes into a code, up to `massimo` characters: in one line, without the delimiters of codes,
/// and what the host cannot print is "?" at once.
void TestoDiCodice(QLineEdit& campo, int massimo = SenzaLimite);

/// Nothing: the box shows what ImpostaComeSta puts there. (Neither being disabled nor being read-only keeps
/// an assistive technology from writing into a box.)
void SoloLettura(QLineEdit& campo);

/// Puts a text into a box of these as it stands, unchecked and uncut. It stays so, whatever it holds; what
/// comes in beside it is filtered.
void ImpostaComeSta(QLineEdit& campo, const QString& testo);

/// Keeps the text of a box legible although it is disabled, in every palette.
void RendiLeggibile(QLineEdit& campo);

/// Columns of one width, as codes are read.
void ConPassoFisso(QLineEdit& campo);

/// Makes a box ready to show a code that nobody edits there: columns of one width, and legible although it is
/// disabled, in every palette. What it shows is put there by ImpostaComeSta.
void MostraCodici(QLineEdit& campo);

}  // namespace parvik
