#include "store/cursor.h"

#include "store/conexion.h"
#include "store/cursordatos.h"
#include "store/errordatos.h"

namespace tarvo {

Cursor::Cursor(const char *esquema, const char *tabla, const char *indice)
    : esquema_(esquema), tabla_(tabla), nombreIndice_(indice), d_(std::make_unique<Datos>(esquema, tabla)) {}

Cursor::~Cursor() {
    if (conexion_)
        conexion_->Baja(*this);
}

// --- opening and closing

void Cursor::Abrir(Conexion &conexion) {
    ComprobarTabla(conexion.Base().getHandle(), esquema_, tabla_, d_->memoria.Nombres());
    conexion_ = &conexion;
    conexion_->Alta(*this);
    Invalidar();
    d_->ultimoId.clear();
    d_->conIndice = false;
}

void Cursor::Cerrar() {
    if (!conexion_)
        return;
    conexion_->Baja(*this);
    Invalidar();
    conexion_ = nullptr;
}

void Cursor::Invalidar() {
    DescartarEdicion();
    d_->memoria.Olvidar();
    d_->fila = 0;
    d_->ultimoId.clear();
}

void Cursor::CerrarEdicion() {
    ConfirmarEdicion();
    DescartarEdicion();
}

void Cursor::ConfirmarEdicion() {
    if (!nueva_)
        Guardar();
}

void Cursor::DescartarEdicion() {
    if (nueva_)
        d_->fila = 0;
    nueva_ = false;
    d_->editada = false;
    d_->pendientes.clear();
}

std::string Cursor::NombreCompleto() const {
    return std::string(esquema_) + ".\"" + tabla_ + "\"";
}

// --- reading and moving

std::int64_t Cursor::Filas() {
    if (!conexion_)
        return 0;
    if (!d_->memoria.ConIds())
        CargarPosiciones({});
    return d_->memoria.Filas();
}

int Cursor::RecordCount() {
    return static_cast<int>(Filas());
}

bool Cursor::HayFila() const {
    return nueva_ || d_->fila < const_cast<Cursor *>(this)->Filas();
}

void Cursor::MoveFirst() {
    if (!conexion_)
        return;
    CerrarEdicion();
    d_->fila = 0;
}

void Cursor::MoveNext() {
    if (!conexion_)
        return;
    if (d_->editada) {
        const bool eraNueva = nueva_;
        Guardar();
        if (eraNueva)
            d_->fila = Filas() - 1;
    }
    if (d_->fila < Filas())
        ++d_->fila;
}

void Cursor::Refresh() {
    if (!conexion_)
        return;
    Guardar();
    d_->fila = 0;
}

void Cursor::Index(const QString &nombre) {
    if (nombreIndice_[0] == '\0' || nombre != QString::fromUtf8(nombreIndice_))
        throw ErrorDatos(
            errores::kIndice,
            QStringLiteral("La tabla %1 no tiene el índice '%2'.").arg(QString::fromUtf8(tabla_), nombre));
    d_->conIndice = true;
}

bool Cursor::Seek(const QString &comparacion, const QString &valor) {
    if (!d_->conIndice || comparacion != QLatin1String("="))
        throw ErrorDatos(
            errores::kIndice,
            QStringLiteral("La tabla %1 no tiene un índice elegido.").arg(QString::fromUtf8(tabla_)));
    return IrAId(valor);
}

bool Cursor::IrAId(const QString &texto) {
    MoveFirst();
    bool esNumero = false;
    const qlonglong id = texto.toLongLong(&esNumero);
    const std::int64_t filas = Filas();
    // Compared as text, as a walk would: " 7" and "07" are not the row 7.
    const bool esId = esNumero && texto == QString::number(id);
    const std::int64_t fila = esId && filas > 0 ? d_->memoria.Buscar(id) : -1;
    d_->fila = fila < 0 ? filas : fila;
    return fila >= 0;
}

std::int64_t Cursor::IdDeFila(std::int64_t fila) const {
    return d_->memoria.Id(fila);
}

void Cursor::Cargar(const std::vector<const Campo *> &campos) {
    std::vector<int> posiciones;
    posiciones.reserve(campos.size());
    for (const Campo *campo : campos)
        posiciones.push_back(campo->posicion_);
    CargarPosiciones(posiciones);
}

void Cursor::CargarPosiciones(const std::vector<int> &posiciones) {
    if (!conexion_)
        return;
    try {
        d_->memoria.Cargar(*conexion_, posiciones);
    } catch (const ErrorDatos &error) {
        if (error.Numero() == errores::kBaseDanada)
            conexion_->Danar(esquema_, error.Motivo());
        throw;
    }
}

void Cursor::RecordarId(std::int64_t id) {
    d_->ultimoId = QString::number(id);
}

QString Cursor::UltimoId() const {
    return d_->ultimoId;
}

// --- writing

void Cursor::ExigirFila() const {
    if (!conexion_)
        throw ErrorDatos(errores::kSinRegistro,
                         QStringLiteral("La tabla %1 no está abierta.").arg(QString::fromUtf8(tabla_)));
    if (!HayFila())
        throw ErrorDatos(
            errores::kSinRegistro,
            QStringLiteral("La tabla %1 no tiene un registro actual.").arg(QString::fromUtf8(tabla_)));
}

void Cursor::AddNew() {
    if (!conexion_)
        ExigirFila();
    CerrarEdicion();
    nueva_ = true;
    d_->editada = true;
}

void Cursor::Delete() {
    ExigirFila();
    if (nueva_) {
        DescartarEdicion();
        d_->fila = Filas();
        return;
    }
    DescartarEdicion();
    conexion_->Escribir(esquema_, [this] {
        const std::int64_t id = d_->memoria.Id(d_->fila);
        conexion_->Ejecutar("DELETE FROM " + NombreCompleto() + " WHERE id=?", {}, id);
        d_->memoria.Quitar(d_->fila);
        return Escritura{.cursor = this, .id = id, .borrada = true};
    });
}

void Cursor::Guardar() {
    if (!d_->editada)
        return;
    if (nueva_)
        GuardarNueva();
    else
        GuardarEdicion();
}

void Cursor::GuardarNueva() {
    Escritura escritura{.cursor = this, .nueva = true};
    std::string columnas;
    std::string lugares;
    for (const auto &[posicion, texto] : d_->pendientes) {
        const char *nombre = d_->memoria.Nombres()[static_cast<std::size_t>(posicion)];
        escritura.valores.emplace_back(nombre, texto);
        columnas += std::string(columnas.empty() ? "\"" : ",\"") + nombre + "\"";
        lugares += lugares.empty() ? "?" : ",?";
    }
    const std::string valores =
        columnas.empty() ? " DEFAULT VALUES" : "(" + columnas + ") VALUES(" + lugares + ")";
    conexion_->Escribir(esquema_, [&] {
        conexion_->Ejecutar("INSERT INTO " + NombreCompleto() + valores, escritura.valores, 0);
        escritura.id = conexion_->UltimoId();
        d_->memoria.Insertar(escritura.id, d_->pendientes);
        return escritura;
    });
    DescartarEdicion();
    RecordarId(escritura.id);
}

void Cursor::GuardarEdicion() {
    Escritura escritura{.cursor = this, .id = d_->memoria.Id(d_->fila)};
    std::string asignaciones;
    for (const auto &[posicion, texto] : d_->pendientes) {
        const char *nombre = d_->memoria.Nombres()[static_cast<std::size_t>(posicion)];
        escritura.valores.emplace_back(nombre, texto);
        asignaciones += std::string(asignaciones.empty() ? "\"" : ",\"") + nombre + "\"=?";
    }
    conexion_->Escribir(esquema_, [&] {
        conexion_->Ejecutar("UPDATE " + NombreCompleto() + " SET " + asignaciones + " WHERE id=?",
                            escritura.valores, escritura.id);
        d_->memoria.Cambiar(d_->fila, d_->pendientes);
        return escritura;
    });
    DescartarEdicion();
}

bool FilaUnica(Cursor &cursor) {
    if (!cursor.HayFila() && cursor.RecordCount() > 0)
        cursor.MoveFirst();
    return cursor.HayFila();
}

} // namespace tarvo
