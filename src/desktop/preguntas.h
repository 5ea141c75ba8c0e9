// How the program speaks to its operator: questions, messages, and picks of a file or folder. Windows and
// rules use this interface; the real one (PreguntasQt) is the only file with message boxes and file dialogs,
// the testkit has a scripted one.
#pragma once

#include <QString>

namespace tarvo {

enum class Icono { Ninguno, Informacion, Pregunta, Critico };
enum class Respuesta { Si, No };

// A file or folder that the operator is asked to pick.
struct PedidoRuta {
    enum class Para { Abrir, Guardar, Carpeta };
    Para para = Para::Abrir;
    QString titulo;
    // "Facturas|*.kzd|Todas las imágenes|*.jpg;*.bmp": what the operator reads, and the patterns.
    QString filtro;
    QString carpeta; // where the dialog starts; empty: where the system likes
    bool operator==(const PedidoRuta &) const = default;
};

class Preguntas {
  public:
    virtual ~Preguntas() = default;
    // A yes/no question with the question icon; `preseleccionada` is the button that Enter presses.
    virtual Respuesta Preguntar(const QString &texto, Respuesta preseleccionada) = 0;
    // A message with one button.
    virtual void Mostrar(const QString &texto, Icono icono) = 0;
    // The full path of what was picked; empty when the operator cancels. A file to open needn't exist, and
    // one to save is not asked about when it does: both are the caller's.
    virtual QString ElegirRuta(const PedidoRuta &pedido) = 0;

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
