// What a program sees to before anything else: descriptors and signals as the writing of files needs them,
// and an end that leaves nothing behind.
#pragma once

namespace parvik {

/// For both programs. Standard input, output and error are open after it, if only onto nothing: no file gets
/// the number of one of them, and messages with it. A file that grows beyond the limit of its size is a
/// failed write and not the end. An exception that nobody catches ends the program as a precondition does
/// that is not met.
void PreparaProcesso();

/// The same for the program that no event loop looks after, and no second thread has. A reader who goes away
/// is a failed write too. SIGINT, SIGTERM and SIGHUP end it as ever, but take the provisional files along,
/// unless whoever started it had them ignored.
void PreparaProcessoSenzaFinestra();

}  // namespace parvik
