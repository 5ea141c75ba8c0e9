// How the program speaks to its operator: questions, messages, picks. Windows and rules use this interface;
// the real one (PreguntasQt) is the only file with message boxes, the testkit has a scripted one.
#pragma once

#include <QString>

namespace tarvo {

enum class Icono { Ninguno, Informacion, Pregunta, Critico };
enum class Respuesta { Si, No };

class Preguntas {
  public:
    virtual ~Preguntas() = default;
    // A yes/no question with the question icon; `preseleccionada` is the button that Enter presses.
    virtual Respuesta Preguntar(const QString &texto, Respuesta preseleccionada) = 0;
    // A message with one button.
    virtual void Mostrar(const QString &texto, Icono icono) = 0;

    bool Confirma(const QString &texto, Respuesta preseleccionada) {
        return Preguntar(texto, preseleccionada) == Respuesta::Si;
    }
    void Informar(const QString &texto) { Mostrar(texto, Icono::Informacion); }
    // The message of every window for an empty required field: Debe llenar el campo "Código"
    void InformarRequerido(const QString &campo) {
        Informar(QStringLiteral("Debe llenar el campo \"%1\"").arg(campo));
    }
};

} // namespace tarvo
