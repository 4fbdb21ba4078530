// A sheet as the toolkit's printing knows one.
#pragma once

#include <QPageLayout>

#include "output/Foglio.h"

namespace parvik {

/// Paper and margins for a printer to begin with; none, which is not valid, without a sheet.
QPageLayout CartaDi(const Foglio& foglio);

/// From one line to the next, in twips; 0 without a sheet.
double PassoRigaDi(const Foglio& foglio);

}  // namespace parvik
