// Files as bytes, a disk that is full, and what an action that fails tells.
#pragma once

#include "store/errordatos.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <map>
#include <random>
#include <sys/resource.h>

namespace tarvo {

inline void Escribir(const QString &ruta, const QByteArray &bytes) {
    QFile archivo(ruta);
    ASSERT_TRUE(archivo.open(QIODevice::WriteOnly | QIODevice::Truncate)) << ruta.toStdString();
    archivo.write(bytes);
}

inline QByteArray Leer(const QString &ruta) {
    QFile archivo(ruta);
    EXPECT_TRUE(archivo.open(QIODevice::ReadOnly)) << ruta.toStdString();
    return archivo.readAll();
}

// The files of a folder.
inline std::map<QString, QByteArray> Contenido(const QString &carpeta) {
    std::map<QString, QByteArray> contenido;
    for (const QFileInfo &info : QDir(carpeta).entryInfoList(QDir::Files | QDir::Hidden))
        contenido[info.fileName()] = Leer(info.filePath());
    return contenido;
}

// How many damaged files a reader must stand.
#ifdef __SANITIZE_ADDRESS__
constexpr int kEstropeados = 100'000;
#else
constexpr int kEstropeados = 5'000;
#endif

// The bytes with one to four blows: cut off, cut out, doubled, or one byte replaced.
inline QByteArray Estropeado(QByteArray bytes, std::mt19937 &azar) {
    const auto hasta = [&azar](qsizetype tope) {
        return static_cast<qsizetype>(azar() % static_cast<std::uint32_t>(std::max<qsizetype>(tope, 1)));
    };
    const QByteArrayView interesantes(",,,.-+e019\0\r\n\x1a\x80\xff \t", 18);
    for (qsizetype golpes = 1 + hasta(4); golpes > 0; --golpes) {
        const qsizetype lugar = hasta(bytes.size());
        switch (azar() % 4) {
        case 0:
            bytes.truncate(lugar);
            break;
        case 1:
            bytes.remove(lugar, 1 + hasta(12));
            break;
        case 2:
            bytes.insert(lugar, bytes.mid(hasta(bytes.size()), hasta(40)));
            break;
        default:
            if (!bytes.isEmpty())
                bytes[lugar] = interesantes[hasta(interesantes.size())];
        }
    }
    return bytes;
}

// Files can't grow beyond `bytes` while it lives.
class DiscoLleno {
  public:
    explicit DiscoLleno(rlim_t bytes) : anterior_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &limite_);
        const rlimit corto{bytes, limite_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &corto);
    }
    ~DiscoLleno() {
        setrlimit(RLIMIT_FSIZE, &limite_);
        std::signal(SIGXFSZ, anterior_);
    }
    DiscoLleno(const DiscoLleno &) = delete;
    DiscoLleno &operator=(const DiscoLleno &) = delete;

  private:
    rlimit limite_{};
    void (*anterior_)(int);
};

// The number of the failure of `accion`; 0 when it did not fail.
template <typename Accion> int NumeroDe(const Accion &accion) {
    try {
        accion();
    } catch (const ErrorDatos &error) {
        return error.Numero();
    }
    return 0;
}

// What that failure tells the operator; empty when there was none.
template <typename Accion> std::string TextoDe(const Accion &accion) {
    try {
        accion();
    } catch (const ErrorDatos &error) {
        return error.what();
    }
    return {};
}

} // namespace tarvo
