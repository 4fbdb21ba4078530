// Where the print command sends the rendered template.
#pragma once

namespace parvik {

/// The numbers are those of the destination dialog's options.
enum class Destinazione { Stampante = 0, File = 1, Anteprima = 2 };

}  // namespace parvik
