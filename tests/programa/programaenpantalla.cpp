#include "programa/programaenpantalla.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <algorithm>
#include <exception>
#include <stdexcept>

namespace tarvo {

namespace {
const QString kTeclado = QStringLiteral("xdotool");

// The splash is 264 pixels high and messages are lower, however long their text.
bool EsPrincipal(const QString &ventana) {
    const QByteArray medidas =
        Ejecutar(kTeclado, {QStringLiteral("getwindowgeometry"), QStringLiteral("--shell"), ventana}, true);
    const qsizetype lugar = medidas.indexOf("HEIGHT=");
    return lugar >= 0 && medidas.mid(lugar + 7, medidas.indexOf('\n', lugar) - lugar - 7).toInt() >= 450;
}
} // namespace

Carpeta::Carpeta() {
    if (!QFile::copy(QStringLiteral(TARVO_PROGRAMA), Ruta("tarvo")))
        throw std::runtime_error("no copy of the program");
    QDir(Raiz()).mkdir(QStringLiteral("sesion"));
    QFile::setPermissions(Ruta("sesion"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

std::vector<std::vector<std::string>> Carpeta::Filas(const char *archivo, const char *consulta) const {
    SQLite::Database base(Ruta((std::string("Datos/") + archivo).c_str()).toStdString(),
                          SQLite::OPEN_READWRITE);
    SQLite::Statement sentencia(base, consulta);
    std::vector<std::vector<std::string>> filas;
    while (sentencia.executeStep()) {
        auto &fila = filas.emplace_back();
        for (int i = 0; i < sentencia.getColumnCount(); ++i)
            fila.push_back(sentencia.getColumn(i).getString());
    }
    return filas;
}

std::string Carpeta::Valor(const char *archivo, const char *consulta) const {
    return Filas(archivo, consulta).at(0).at(0);
}

ProgramaEnPantalla::ProgramaEnPantalla(const Carpeta &carpeta, const QStringList &argumentos) {
    QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
    entorno.insert(QStringLiteral("XDG_CONFIG_HOME"), carpeta.Ruta("ajustes"));
    entorno.insert(QStringLiteral("XDG_DATA_HOME"), carpeta.Ruta("usuario"));
    entorno.insert(QStringLiteral("XDG_RUNTIME_DIR"), carpeta.Ruta("sesion"));
    // Under the sanitizers: the session bus library keeps memory to the end of every process.
    entorno.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    entorno.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    proceso_.setProcessEnvironment(entorno);
    proceso_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    proceso_.start(carpeta.Ruta("tarvo"), argumentos);
    if (!proceso_.waitForStarted())
        throw std::runtime_error("the program did not start");
    Esperar("first window", [this] { return !VentanasVisibles().isEmpty(); });
    if (argumentos != kDirecto)
        cuadro_ = VentanasVisibles().value(0); // the splash is no box
}

ProgramaEnPantalla::~ProgramaEnPantalla() {
    FotoDeFallo();
    Matar();
}

QStringList ProgramaEnPantalla::VentanasVisibles() const {
    const QByteArray salida =
        Ejecutar(kTeclado,
                 {QStringLiteral("search"), QStringLiteral("--all"), QStringLiteral("--onlyvisible"),
                  QStringLiteral("--pid"), QString::number(proceso_.processId()), QStringLiteral("--name"),
                  QStringLiteral(".")},
                 true);
    return QString::fromLatin1(salida).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QString ProgramaEnPantalla::BuscarPrincipal() const {
    const QStringList ventanas = VentanasVisibles();
    const auto hallada = std::find_if(ventanas.begin(), ventanas.end(), EsPrincipal);
    return hallada == ventanas.end() ? QString() : *hallada;
}

QString ProgramaEnPantalla::Activa() const {
    return QString::fromLatin1(Ejecutar(kTeclado, {QStringLiteral("getactivewindow")}, true)).trimmed();
}

void ProgramaEnPantalla::EsperarPrincipal() {
    Esperar("main window", [this] {
        principal_ = BuscarPrincipal();
        return !principal_.isEmpty();
    });
    EsperarVuelta();
}

void ProgramaEnPantalla::EsperarCuadro() {
    Esperar("message box", [this] {
        const QString activa = Activa();
        if (activa == principal_ || activa == cuadro_ || !VentanasVisibles().contains(activa))
            return false;
        cuadro_ = activa;
        return true;
    });
}

void ProgramaEnPantalla::EsperarVuelta() {
    Esperar("main window with the keyboard", [this] { return Activa() == principal_; });
}

void ProgramaEnPantalla::Teclas(const QStringList &teclas) {
    Ejecutar(kTeclado,
             QStringList{QStringLiteral("key"), QStringLiteral("--delay"), QStringLiteral("25")} + teclas);
}

void ProgramaEnPantalla::Escribir(const QString &texto) {
    Ejecutar(kTeclado, {QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("15"), texto});
}

void ProgramaEnPantalla::Escanear(const std::string &codigo) {
    const QString sinDemora = QStringLiteral("0");
    Ejecutar(kTeclado,
             {QStringLiteral("type"), QStringLiteral("--args"), QStringLiteral("1"),
              QStringLiteral("--delay"), sinDemora, QString::fromStdString(codigo), QStringLiteral("key"),
              QStringLiteral("--delay"), sinDemora, QStringLiteral("Return"), QStringLiteral("Return")});
}

void ProgramaEnPantalla::FotoDeFallo() const {
    if (!testing::Test::HasFailure() && std::uncaught_exceptions() == 0)
        return;
    Ejecutar(QStringLiteral("import"),
             {QStringLiteral("-window"), QStringLiteral("root"),
              QStringLiteral("fallo-%1.png").arg(proceso_.processId())},
             true);
}

int ProgramaEnPantalla::CodigoSalida() {
    if (!proceso_.waitForFinished(kEspera))
        throw std::runtime_error("the program did not end");
    return proceso_.exitStatus() == QProcess::NormalExit ? proceso_.exitCode() : -1;
}

void ProgramaEnPantalla::Matar() {
    proceso_.kill();
    proceso_.waitForFinished(kEspera);
}

void ProgramaEnPantalla::Cerrar() {
    Teclas({QStringLiteral("alt+F4")});
    CodigoSalida();
}

} // namespace tarvo
