#include "shell/ventanas/atajosprincipal.h"

#include "desktop/preguntas.h"
#include "shell/ventanas/acciones.h"
#include "shell/ventanas/frmatajos.h"

#include <QFile>
#include <QSaveFile>

namespace tarvo {

AtajosPrincipal::AtajosPrincipal(Acciones &acciones, Preguntas &preguntas, QString ruta)
    : acciones_(acciones), preguntas_(preguntas), ruta_(std::move(ruta)) {
    QFile archivo(ruta_);
    if (archivo.open(QIODevice::ReadOnly))
        atajos_.Leer(archivo);
    Aplicar();
}

void AtajosPrincipal::Mostrar(QWidget *padre) {
    FrmAtajos(
        atajos_, preguntas_,
        [this] {
            Aplicar();
            Guardar();
        },
        padre)
        .exec();
}

void AtajosPrincipal::Aplicar() {
    // No two entries share a key on the way.
    for (const Entrada entrada : Atajos::Asignables())
        acciones_.PonerAtajo(entrada, {});
    for (const Entrada entrada : Atajos::Asignables())
        acciones_.PonerAtajo(entrada, atajos_.De(entrada));
}

void AtajosPrincipal::Guardar() {
    QSaveFile archivo(ruta_);
    archivo.setDirectWriteFallback(true);
    const QByteArray contenido = atajos_.Archivo();
    if (!archivo.open(QIODevice::WriteOnly) || archivo.write(contenido) != contenido.size() ||
        !archivo.flush() || !archivo.commit())
        preguntas_.Informar(
            QStringLiteral(
                "No se pudieron guardar las teclas en \"%1\": %2\nValen hasta que cierre el programa.")
                .arg(ruta_, archivo.errorString()));
}

} // namespace tarvo
