// The writing half of the list-and-detail pattern: save, duplicates, delete, and the list row after them.
#include "desktop/almacenar.h"
#include "desktop/preguntas.h"
#include "masterdata/listadetalle.h"
#include "store/errordatos.h"

namespace tarvo {

namespace {

std::string_view Vista8(const QByteArray &bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

} // namespace

std::optional<int> RequeridoVacio(const std::vector<CampoDetalle> &campos, const QStringList &textos) {
    for (std::size_t i = 0; i < campos.size(); ++i) {
        const auto posicion = static_cast<int>(i);
        if (!campos[i].requerido.isEmpty() && textos[posicion].isEmpty())
            return posicion;
    }
    return std::nullopt;
}

bool ListaDetalle::EnTransaccion(const QString &accion, const QStringList &textos,
                                 const std::function<void()> &escribir) {
    const Operacion operacion{QLatin1String(reglas_.cursor.Tabla()), accion, idMostrado_};
    return Almacenar(frmBases_, preguntas_, operacion + textos, escribir);
}

QStringList ListaDetalle::Textos() const {
    QStringList textos;
    for (std::size_t i = 0; i < reglas_.campos.size(); ++i)
        textos << vista_.Texto(static_cast<int>(i));
    return textos;
}

bool ListaDetalle::RequeridosLlenos() {
    const std::optional<int> vacio = RequeridoVacio(reglas_.campos, Textos());
    if (vacio) {
        preguntas_.InformarRequerido(reglas_.campos[static_cast<std::size_t>(*vacio)].requerido);
        vista_.EnfocarCampo(*vacio);
    }
    return !vacio;
}

void ListaDetalle::Guardar() {
    if (!BotonesDelEstado().guardar || !RequeridosLlenos() || !CamposValidos())
        return;
    const bool nueva = estado_ == EstadoDetalle::Nueva;
    if (!nueva && !preguntas_.Confirma(reglas_.preguntaModificar, reglas_.preseleccionada))
        return;
    const int fila = nueva ? -1 : FilaMostrada();
    if (HayDuplicado(fila) || !EnTransaccion(QStringLiteral("guardar"), Textos(), [this] { EscribirFila(); }))
        return;
    if (nueva)
        TrasAgregar();
    else
        TrasModificar(fila);
}

// The row of the list that the fields show: the selected one, unless a search has moved on since.
int ListaDetalle::FilaMostrada() const {
    if (idMostrado_.isEmpty())
        return -1;
    const int elegida = vista_.FilaActual();
    const QByteArray id = idMostrado_.toUtf8();
    if (elegida >= 0 && lista_.CeldaUtf8(elegida, columnaId_) == Vista8(id))
        return elegida;
    return lista_.Buscar(columnaId_, Vista8(id));
}

bool ListaDetalle::HayDuplicado(int filaPropia) {
    int posibles = 0;
    for (const PruebaDuplicado &prueba : reglas_.duplicados) {
        const QByteArray texto = vista_.Texto(prueba.campo).toUtf8();
        posibles += indice_.Cuantas(lista_, prueba.columna, Vista8(texto));
        if (filaPropia >= 0 && IgualSinCaja(lista_.CeldaUtf8(filaPropia, prueba.columna), Vista8(texto)))
            --posibles;
    }
    // Only a list that may hold a duplicate is walked, to find which one comes first.
    for (int fila = 0; posibles > 0 && fila < lista_.Filas(); ++fila) {
        const PruebaDuplicado *prueba = fila == filaPropia ? nullptr : DuplicadoEn(fila);
        if (prueba == nullptr)
            continue;
        preguntas_.Informar(prueba->mensaje);
        vista_.EnfocarCampo(prueba->campo);
        return true;
    }
    return false;
}

const PruebaDuplicado *ListaDetalle::DuplicadoEn(int fila) const {
    for (const PruebaDuplicado &prueba : reglas_.duplicados) {
        const QByteArray texto = vista_.Texto(prueba.campo).toUtf8();
        if (IgualSinCaja(lista_.CeldaUtf8(fila, prueba.columna), Vista8(texto)))
            return &prueba;
    }
    return nullptr;
}

void ListaDetalle::EscribirFila() {
    if (estado_ == EstadoDetalle::Nueva)
        reglas_.cursor.AddNew();
    else if (!Posicionar(idMostrado_))
        throw ErrorDatos(errores::kSinRegistro, QStringLiteral("El registro ya no existe."));
    for (std::size_t i = 0; i < reglas_.campos.size(); ++i) {
        const CampoDetalle &detalle = reglas_.campos[i];
        if (detalle.campo != nullptr && !detalle.soloMostrar)
            detalle.campo->Poner(AGuardar(static_cast<int>(i)));
    }
    reglas_.cursor.Refresh();
    TrasEscribir(estado_ == EstadoDetalle::Nueva);
}

void ListaDetalle::TrasModificar(int fila) {
    if (reglas_.rellenarAlGuardar) {
        LlenarLista();
        return;
    }
    if (fila >= 0)
        ActualizarFila(fila);
    Mostrar();
    if (reglas_.enfocarTrasModificar)
        vista_.EnfocarLista();
}

void ListaDetalle::TrasAgregar() {
    camposGrises_ = false;
    Pasar(EstadoDetalle::Viendo);
    if (reglas_.rellenarAlGuardar || lista_.Filas() == 0) {
        LlenarLista();
    } else {
        AgregarFila();
        vista_.SeleccionarFila(lista_.Filas() - 1);
        SenalarMostrada();
    }
    if (reglas_.nuevoTrasGuardar)
        Nuevo();
    else
        vista_.EnfocarLista();
}

void ListaDetalle::ActualizarFila(int fila) {
    for (int columna = 0; columna < lista_.columnCount(); ++columna) {
        if (columna == columnaId_)
            continue;
        const QByteArray texto = CeldaGuardada(columna).toUtf8();
        indice_.Quitar(columna, lista_.CeldaUtf8(fila, columna));
        indice_.Agregar(columna, Vista8(texto));
        lista_.PonerCelda(fila, columna, QString::fromUtf8(texto));
    }
}

void ListaDetalle::AgregarFila() {
    idMostrado_ = reglas_.cursor.UltimoId();
    QStringList celdas;
    for (int columna = 0; columna < lista_.columnCount(); ++columna) {
        celdas << (columna == columnaId_ ? idMostrado_ : CeldaGuardada(columna));
        const QByteArray texto = celdas.last().toUtf8();
        indice_.Agregar(columna, Vista8(texto));
    }
    lista_.AgregarFila(celdas);
}

void ListaDetalle::Eliminar() {
    if (!BotonesDelEstado().eliminar)
        return;
    if (!reglas_.avisoUltimaFila.isEmpty() && lista_.Filas() == 1) {
        preguntas_.Informar(reglas_.avisoUltimaFila);
        return;
    }
    if (!preguntas_.Confirma(reglas_.preguntaEliminar, reglas_.preseleccionada))
        return;
    if (!EnTransaccion(QStringLiteral("eliminar"), {}, [this] { QuitarFila(); }))
        return;
    if (reglas_.eliminarApagaExportar)
        Exportar(false);
    LlenarLista();
    vista_.EnfocarLista();
}

void ListaDetalle::QuitarFila() {
    if (!Posicionar(idMostrado_))
        throw ErrorDatos(errores::kSinRegistro, QStringLiteral("El registro ya no existe."));
    reglas_.cursor.Delete();
    reglas_.cursor.Refresh();
}

} // namespace tarvo
