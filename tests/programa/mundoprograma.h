// The world of a whole-program test: a screen, and a folder with the program.
#pragma once

#include "programa/programaenpantalla.h"

#include <gtest/gtest.h>

namespace tarvo {

class MundoPrograma : public testing::Test {
  protected:
    Pantalla pantalla_;
    Carpeta carpeta_;
};

} // namespace tarvo
