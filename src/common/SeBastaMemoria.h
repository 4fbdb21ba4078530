// Too little memory, made a value: the one exception that the core meets, where it must go no further.
#pragma once

#include <new>
#include <stdexcept>
#include <type_traits>

#include "common/ErroreRuntime.h"

namespace parvik {

/// What `fai` gives; `altrimenti`, as its result, where there is too little memory for it. Whatever a layer
/// does for another one that may take memory in proportion to a file or to what is rendered goes through
/// this. What `fai` had done until then is left as it was then.
template <class Fai, class Altrimenti = NumeroErrore>
std::invoke_result_t<Fai&> SeBastaMemoria(Fai fai, Altrimenti altrimenti = NumeroErrore::MemoriaEsaurita) {
  try {
    return fai();
  } catch (const std::bad_alloc&) {
    return altrimenti;
  } catch (const std::length_error&) {  // longer than any memory is
    return altrimenti;
  }
}

}  // namespace parvik
