#include "interchange/excelfile.h"

#include "desktop/windows1252.h"

#include <QIODevice>

#include <limits>

namespace tarvo {

namespace {

std::uint8_t Byte(qsizetype numero) {
    if (numero < 0 || numero > std::numeric_limits<std::uint8_t>::max())
        throw DesbordeHoja();
    return static_cast<std::uint8_t>(numero);
}

// The place of a cell counted from 0, out of one counted from 1 that must be a byte itself.
std::uint8_t Lugar(int desdeUno) {
    return Byte(Byte(desdeUno) - 1);
}

} // namespace

void ExcelFile::Escribir(std::initializer_list<std::uint8_t> bytes) {
    salida_.write(reinterpret_cast<const char *>(bytes.begin()), static_cast<qint64>(bytes.size()));
}

// The document type is 0x0A, which is no worksheet's.
void ExcelFile::OpenFile() {
    Escribir({0x09, 0, 4, 0, 2, 0, 0x0A, 0});
}

void ExcelFile::EWriteString(int row, int col, const QString &value) {
    const QByteArray texto = AWindows1252(value);
    const std::uint8_t resto = Byte(texto.size() + 8);
    Escribir({0x04, 0, resto, 0, Lugar(row), 0, Lugar(col), 0, 0, 0, 0, Byte(texto.size())});
    salida_.write(texto);
}

void ExcelFile::EWriteInteger(int row, int col, int value) {
    const std::uint8_t alto = Byte(value / 256);
    Escribir({0x02, 0, 9, 0, Lugar(row), 0, Lugar(col), 0, 0, 0, 0, Byte(value % 256), alto});
}

void ExcelFile::CloseFile() {
    Escribir({0x0A, 0, 0, 0});
}

} // namespace tarvo
