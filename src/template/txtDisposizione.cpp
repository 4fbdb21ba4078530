#include "template/txtDisposizione.h"

#include <algorithm>

namespace parvik {

// At least one character: the base class would look for the last line in front of a change that put nothing
// in.
void txtDisposizione::documentChanged(int da, int /*tolti*/, int messi) {
  QPlainTextDocumentLayout::documentChanged(da, 0, std::max(messi, 1));
}

}  // namespace parvik
