// A printer and the person in front of it: the choice, with the toolkit's own dialog, and the waiting.
#pragma once

#include <QPrinter>
#include <QWidget>
#include <memory>

#include "output/ricCarta.h"

namespace parvik {

/// The printer that the user has chosen and set up; nullptr when none was, and, without a question, on a
/// machine that has no printer. Printing to a file, ranges of pages and selections are not offered.
std::shared_ptr<QPrinter> ChiediStampante(QWidget* padre);

/// Prints. When it takes longer than half a second a box in front of `padre` says so and offers "Annulla",
/// which gives the job up. Failures are silent.
void StampaConAttesa(QPrinter& stampante, const TestoAnteprima& testo, const Selezione& parte,
                     QWidget* padre);

}  // namespace parvik
