// A screen of its own for the tests of the whole program: Xvfb on a free display number, openbox as its
// window manager, keys by xdotool. Whatever does not come in time ends the test with an exception that says
// what it was.
#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

namespace tarvo {

constexpr int kEspera = 20000; // ms; a limit for what comes at once, also on a busy machine

// Runs `orden` and returns what it printed; throws when it can't be run or fails, unless `puedeFallar`.
QByteArray Ejecutar(const QString &orden, const QStringList &argumentos, bool puedeFallar = false);
// Asks again and again until `cumple`; throws with `que` after kEspera.
void Esperar(const char *que, const std::function<bool()> &cumple);

class Pantalla {
  public:
    // The screen becomes DISPLAY of this process and of those that it starts.
    Pantalla();
    ~Pantalla();
    Pantalla(const Pantalla &) = delete;
    Pantalla &operator=(const Pantalla &) = delete;

  private:
    QTemporaryDir registros_;
    QProcess servidor_;
    QProcess gestor_;
};

} // namespace tarvo
