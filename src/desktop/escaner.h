// What is known of every barcode scanner: it is a keyboard, and faster than hands.
#pragma once

namespace tarvo {

inline constexpr int kRitmoEscaner = 100;     // ms; keys that follow one another faster come from a scanner
inline constexpr int kEsperaRepeticion = 100; // ms; a key that is held begins to repeat much later
inline constexpr int kCodigoMenor = 3;        // fewer characters at that pace are no code

} // namespace tarvo
