// What a screen reader is told about the controls of this program, beyond what the toolkit tells by itself.
#pragma once

namespace tarvo {

// Amounts are called by caption and value, lists speak row by row. Once for the program.
void PrepararAcceso();

} // namespace tarvo
