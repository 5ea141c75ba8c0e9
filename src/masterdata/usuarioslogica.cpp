#include "masterdata/usuarioslogica.h"

#include "desktop/preguntas.h"
#include "store/store.h"

#include <array>

namespace tarvo {

namespace {

const QString kSinCategoria = QStringLiteral("Categoría"); // the prompt of the combo
const QString kMarca = QStringLiteral("Velbrina");         // shown in the place of a password
constexpr int kColumnaCategoria = 1;

struct Categoria {
    QString codigo; // as it is stored
    QString nombre;
};
const std::array<Categoria, 2> &Categorias() {
    static const std::array<Categoria, 2> categorias{
        {{QStringLiteral("k917"), QStringLiteral("Administrador")},
         {QStringLiteral("t917"), QStringLiteral("Operador")}}};
    return categorias;
}

QString NombreDeCategoria(const QString &codigo) {
    for (const Categoria &categoria : Categorias())
        if (categoria.codigo == codigo)
            return categoria.nombre;
    return {};
}

ReglasDetalle ReglasUsuarios(FrmBases &bases) {
    return {
        .cursor = bases.datUsuarios,
        .id = bases.camUsuId,
        .campos = {{.control = "txtUsuNombre",
                    .campo = &bases.camUsuCodigo,
                    .requerido = QStringLiteral("Nombre")},
                   {.control = "cboxCategoria", .campo = &bases.camUsuPrecio, .inicial = kSinCategoria},
                   {.control = "txtUsuClaveOculta", .campo = &bases.camUsuArticulo},
                   {.control = "txtUsuClave", .requerido = QStringLiteral("Clave")},
                   {.control = "txtUsuConfirma"}},
        .columnas = {{{.titulo = QStringLiteral("Nombre"), .ancho = 4850}, &bases.camUsuCodigo},
                     {{.titulo = kSinCategoria, .ancho = 4850}, &bases.camUsuPrecio},
                     {{.titulo = QStringLiteral("id"), .oculta = true}, &bases.camUsuId}},
        .preguntaModificar = QStringLiteral("Está seguro de querer modificar el usuario seleccionado?"),
        .preguntaEliminar = QStringLiteral("Está seguro de querer eliminar el registro seleccionado?"),
        .preseleccionada = Respuesta::Si,
        .rellenarAlGuardar = true,
        .enfocarAlLlenar = true,
    };
}

} // namespace

UsuariosLogica::UsuariosLogica(FrmBases &bases, Preguntas &preguntas, VistaDetalle &vista, Acciones acciones)
    : ListaDetalle(bases, preguntas, vista, ReglasUsuarios(bases)), acciones_(std::move(acciones)) {}

void UsuariosLogica::Actualizar() {
    if (!EntradaEnCurso())
        acciones_.iniciarTimer1();
}

void UsuariosLogica::AlLlenar() {
    QStringList entradas{kSinCategoria};
    for (const Categoria &categoria : Categorias())
        entradas << categoria.nombre;
    vista().PonerEntradas(kCategoria, entradas);
    PedirConfirmacion(false);
}

ContenidoLista UsuariosLogica::LeerFilas() {
    ContenidoLista contenido = ListaDetalle::LeerFilas();
    ColumnaTexto &nombres = contenido.celdas[kColumnaCategoria];
    for (std::int64_t fila = 0; fila < nombres.Filas(); ++fila)
        nombres.Poner(fila, NombreDeCategoria(nombres.Texto(fila)).toStdString());
    return contenido;
}

void UsuariosLogica::AlMostrar() {
    vista().Poner(kClave, kMarca);
    vista().Poner(kConfirma, {});
    PedirConfirmacion(false);
}

void UsuariosLogica::AlNuevo() {
    PedirConfirmacion(true);
}

// The prompt also while no user is shown, and the field of the confirmation only when it is asked for.
void UsuariosLogica::AlCambiarEstado() {
    if (vista().Texto(kCategoria).isEmpty())
        vista().Poner(kCategoria, kSinCategoria);
    acciones_.habilitarConfirmacion(pideConfirmacion_);
}

void UsuariosLogica::VigilarClave() {
    const QString clave = vista().Texto(kClave);
    if (Estado() != EstadoDetalle::Vacia && !clave.isEmpty() && clave != kMarca && !pideConfirmacion_)
        PedirConfirmacion(true);
}

void UsuariosLogica::PedirConfirmacion(bool pide) {
    pideConfirmacion_ = pide;
    acciones_.habilitarConfirmacion(pide);
}

bool UsuariosLogica::Rechazar(int campo, const QString &mensaje) {
    preguntas().Informar(mensaje);
    vista().EnfocarCampo(campo);
    return false;
}

bool UsuariosLogica::CamposValidos() {
    const QString clave = vista().Texto(kClave);
    const QString confirmacion = vista().Texto(kConfirma);
    if (pideConfirmacion_ && confirmacion.isEmpty()) {
        preguntas().InformarRequerido(QStringLiteral("Confirmación"));
        vista().EnfocarCampo(kConfirma);
        return false;
    }
    if (pideConfirmacion_ && confirmacion != clave)
        return Rechazar(kClave,
                        QStringLiteral("El campo \"Clave\" y el campo \"Confirmación\" deben ser iguales"));
    if (vista().Texto(kCategoria) == kSinCategoria)
        return Rechazar(kCategoria, QStringLiteral("Debe seleccionar una Categoría."));
    if (pideConfirmacion_)
        vista().Poner(kClaveOculta, clave);
    return true;
}

QString UsuariosLogica::AMostrar(int campo, const QString &guardado) const {
    if (campo != kCategoria)
        return guardado;
    const QString nombre = NombreDeCategoria(guardado);
    return nombre.isEmpty() ? kSinCategoria : nombre;
}

QString UsuariosLogica::AGuardar(int campo) const {
    QString texto = vista().Texto(campo);
    if (campo != kCategoria)
        return texto;
    for (const Categoria &categoria : Categorias())
        if (categoria.nombre == texto)
            return categoria.codigo;
    return {};
}

// The row carries its own id in a column too.
void UsuariosLogica::TrasEscribir(bool nueva) {
    if (!nueva)
        return;
    const QString id = frmBases().datUsuarios.UltimoId();
    frmBases().datUsuarios.IrAId(id);
    frmBases().camUsuCantidad = id;
    frmBases().datUsuarios.Refresh();
}

} // namespace tarvo
