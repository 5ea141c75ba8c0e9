// The keys as the menus name them: "Ctrl" stays "Ctrl", where the toolkit's Spanish would say "Control".
//
// It is installed behind the other translations, so that it is asked first.
#pragma once

#include <QTranslator>

namespace tarvo {

class TraduccionTeclas : public QTranslator {
    Q_OBJECT
  public:
    using QTranslator::QTranslator;
    bool isEmpty() const override { return false; }
    QString translate(const char *contexto, const char *texto, const char *aclaracion,
                      int cantidad) const override;
};

} // namespace tarvo
