#include "store/cursor.h"
#include "store/cursordatos.h"
#include "store/errordatos.h"

#include <QAnyStringView>

#include <charconv>

namespace tarvo {

Campo::Campo(Cursor &cursor, const char *columna)
    : cursor_(&cursor), nombre_(columna), posicion_(cursor.d_->memoria.Posicion(columna)) {}

std::string_view Campo::Utf8() const {
    if (!cursor_->conexion_)
        return {};
    Cursor::Datos &d = *cursor_->d_;
    if (d.editada) {
        if (const std::string *texto = d.Escrito(posicion_))
            return *texto;
        if (cursor_->nueva_)
            return {};
    }
    if (posicion_ < 0)
        return TextoId();
    if (!d.memoria.ConColumna(posicion_))
        cursor_->CargarPosiciones({posicion_});
    return d.fila < d.memoria.Filas() ? d.memoria.Celda(posicion_, d.fila) : std::string_view();
}

std::string_view Campo::TextoId() const {
    Cursor::Datos &d = *cursor_->d_;
    if (d.fila >= cursor_->Filas())
        return {};
    char *inicio = d.idTexto.data();
    const auto fin = std::to_chars(inicio, inicio + d.idTexto.size(), d.memoria.Id(d.fila)).ptr;
    return {inicio, static_cast<std::size_t>(fin - inicio)};
}

QString Campo::Texto() const {
    const std::string_view utf8 = Utf8();
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

bool Campo::Es(const QString &texto) const {
    const std::string_view utf8 = Utf8();
    const QUtf8StringView vista(utf8.data(), static_cast<qsizetype>(utf8.size()));
    return QAnyStringView(vista) == QAnyStringView(texto);
}

void Campo::Poner(const QString &texto) {
    cursor_->ExigirFila();
    if (posicion_ < 0)
        throw ErrorDatos(errores::kSinRegistro, QStringLiteral("La columna id no se puede escribir."));
    Cursor::Datos &d = *cursor_->d_;
    const auto suyo = [this](const auto &v) { return v.first == posicion_; };
    const auto it = std::find_if(d.pendientes.begin(), d.pendientes.end(), suyo);
    if (it == d.pendientes.end())
        d.pendientes.emplace_back(posicion_, texto.toStdString());
    else
        it->second = texto.toStdString();
    d.editada = true;
}

const ColumnaTexto &Campo::Columna() const {
    if (cursor_->conexion_)
        cursor_->CargarPosiciones({posicion_});
    return cursor_->d_->memoria.Columna(posicion_);
}

} // namespace tarvo
