#include "desktop/windows1252.h"

#include <QStringDecoder>
#include <QStringEncoder>

namespace tarvo {

namespace {
constexpr const char *kPagina = "windows-1252";
}

QByteArray AWindows1252(const QString &texto) {
    QStringEncoder codificador(kPagina);
    Q_ASSERT(codificador.isValid());
    QByteArray bytes = codificador.encode(texto);
    if (codificador.hasError())
        bytes.replace('\x1a', '?'); // what the encoder puts for a character that it lacks
    return bytes;
}

QString DeWindows1252(const QByteArray &bytes) {
    QStringDecoder decodificador(kPagina);
    Q_ASSERT(decodificador.isValid());
    return decodificador.decode(bytes);
}

} // namespace tarvo
