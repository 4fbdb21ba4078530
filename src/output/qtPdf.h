// A preview as a PDF document, made by the toolkit without its printing.
#pragma once

#include <QWidget>
#include <functional>
#include <string_view>

#include "output/LavoroPdf.h"

namespace parvik {

/// Paints the pages as a printer would get them, fonts included, and hands the document's bytes to `scrivi`,
/// piece by piece; once that says false it is not asked again. When it takes longer than half a second a box
/// in front of `padre` says so and offers "Annulla". Whether `scrivi` got the whole document.
bool PdfConAttesa(const LavoroPdf& lavoro, const std::function<bool(std::string_view)>& scrivi,
                  QWidget* padre);

}  // namespace parvik
