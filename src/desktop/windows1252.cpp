#include "desktop/windows1252.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <algorithm>

namespace tarvo {

namespace {
constexpr const char *kPagina = "windows-1252";
}

// Nearly every text has only characters that have the same number in Latin-1, which is quick to write.
QByteArray AWindows1252(const QString &texto) {
    const auto comun = [](QChar c) {
        return c.unicode() < 0x80 || (c.unicode() >= 0xA0 && c.unicode() <= 0xFF);
    };
    if (std::all_of(texto.cbegin(), texto.cend(), comun))
        return texto.toLatin1();
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
