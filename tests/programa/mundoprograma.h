// The world of a whole-program test: a screen, a folder with the program. A test that fails leaves a picture
// of the screen in the working folder.
#pragma once

#include "programa/programaenpantalla.h"

#include <gtest/gtest.h>

namespace tarvo {

class MundoPrograma : public testing::Test {
  protected:
    void TearDown() override {
        if (!HasFailure())
            return;
        const auto *prueba = testing::UnitTest::GetInstance()->current_test_info();
        Ejecutar(QStringLiteral("import"),
                 {QStringLiteral("-window"), QStringLiteral("root"),
                  QStringLiteral("fallo-%1.png").arg(QLatin1String(prueba->name()))});
    }

    Pantalla pantalla_;
    Carpeta carpeta_;
};

} // namespace tarvo
