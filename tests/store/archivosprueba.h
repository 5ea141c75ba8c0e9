// The files of a folder as bytes, for the tests of the store.
#pragma once

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <map>

namespace tarvo {

inline std::map<QString, QByteArray> Contenido(const QString &carpeta) {
    std::map<QString, QByteArray> contenido;
    for (const QFileInfo &info : QDir(carpeta).entryInfoList(QDir::Files | QDir::Hidden)) {
        QFile archivo(info.filePath());
        EXPECT_TRUE(archivo.open(QIODevice::ReadOnly));
        contenido[info.fileName()] = archivo.readAll();
    }
    return contenido;
}

inline void Escribir(const QString &ruta, const QByteArray &bytes) {
    QFile archivo(ruta);
    ASSERT_TRUE(archivo.open(QIODevice::WriteOnly | QIODevice::Truncate));
    archivo.write(bytes);
}

} // namespace tarvo
