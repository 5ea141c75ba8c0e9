// Lists as the windows show them, and spreadsheet files taken apart by a reader that knows nothing of the
// writer.
#pragma once

#include "desktop/listatexto.h"
#include "desktop/windows1252.h"
#include "interchange/exportacion.h"
#include "interchange/tablaexportacion.h"

#include <QBuffer>

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace tarvo {

// A list of nine columns, as many as any that is exported.
class ListaExportada {
  public:
    explicit ListaExportada(const QList<QStringList> &filas = {}) {
        for (const QStringList &fila : filas)
            lista.AgregarFila(fila);
    }
    // `filas` rows whose cells are their numbers, as "7.2": row 7, column 2.
    explicit ListaExportada(int filas) {
        for (int i = 1; i <= filas; ++i) {
            QStringList fila;
            for (int columna = 0; columna < 9; ++columna)
                fila << QStringLiteral("%1.%2").arg(i).arg(columna);
            lista.AgregarFila(fila);
        }
    }

    QByteArray Hoja(const char *control, const QString &saldo = {}, const QString &cliente = {}) const {
        const QString nombre = QString::fromLatin1(control);
        return Escrito([&](QIODevice &salida) {
            EscribirHoja(salida, *TablaDe(nombre), {&lista, nombre, saldo, cliente});
        });
    }
    QByteArray Texto(const char *control) const {
        return Escrito(
            [&](QIODevice &salida) { EscribirTexto(salida, *TablaDe(QString::fromLatin1(control)), lista); });
    }

    ListaTexto lista{std::vector<ColumnaLista>(9)};

  private:
    template <typename Escritor> static QByteArray Escrito(Escritor escribir) {
        QBuffer salida;
        salida.open(QIODevice::WriteOnly);
        escribir(salida);
        return salida.data();
    }
};

// The cells of a spreadsheet in the order of the file, each "row:column text".
struct HojaLeida {
    QStringList celdas;
    bool terminada = false; // ends with its end record

    explicit HojaLeida(const QByteArray &bytes) {
        const auto numero = [&](qsizetype i) {
            return int(quint8(bytes.at(i))) + 256 * int(quint8(bytes.at(i + 1)));
        };
        for (qsizetype i = 0; i + 4 <= bytes.size(); i += 4 + numero(i + 2)) {
            terminada = numero(i) == 0x0A && i + 4 == bytes.size();
            if (numero(i) == 0x04)
                celdas << QStringLiteral("%1:%2 %3")
                              .arg(numero(i + 4) + 1)
                              .arg(numero(i + 6) + 1)
                              .arg(DeWindows1252(bytes.mid(i + 12, quint8(bytes.at(i + 11)))));
        }
    }
    std::string Texto() const { return celdas.join(QLatin1Char('|')).toStdString(); }
};

} // namespace tarvo
