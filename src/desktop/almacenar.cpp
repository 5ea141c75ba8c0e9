#include "desktop/almacenar.h"

#include "desktop/preguntas.h"
#include "store/errordatos.h"

namespace tarvo {

namespace {

void Escribir(FrmBases &frmBases, const Operacion &operacion, const std::function<void()> &escribir) {
    Transaccion transaccion(frmBases, operacion);
    escribir();
    transaccion.Confirmar();
}

// A fault that passes, as one while a file is opened, is gone at the second try.
void EscribirInsistiendo(FrmBases &frmBases, const Operacion &operacion,
                         const std::function<void()> &escribir) {
    try {
        Escribir(frmBases, operacion, escribir);
    } catch (const OperacionAnterior &) {
        throw;
    } catch (const ErrorDatos &error) {
        if (error.Numero() != errores::kEscritura)
            throw;
        Escribir(frmBases, operacion, escribir);
    }
}

QString ConNota(const QString &texto, const QString &nota) {
    return nota.isEmpty() ? texto : texto + QStringLiteral("\n\n") + nota;
}

} // namespace

bool Almacenar(FrmBases &frmBases, Preguntas &preguntas, const Operacion &operacion,
               const std::function<void()> &escribir, const QString &siFalla) {
    try {
        EscribirInsistiendo(frmBases, operacion, escribir);
        return true;
    } catch (const OperacionAnterior &anterior) {
        preguntas.Informar(anterior.Descripcion());
        return anterior.EsLaMisma();
    } catch (const ErrorDatos &error) {
        const bool dudosa = error.Numero() == errores::kSinComprobar;
        preguntas.Mostrar(dudosa ? error.Descripcion() : ConNota(error.Descripcion(), siFalla),
                          Icono::Critico);
        return false;
    }
}

} // namespace tarvo
