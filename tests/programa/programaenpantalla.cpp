#include "programa/programaenpantalla.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QDir>
#include <QFile>

#include <algorithm>
#include <exception>
#include <stdexcept>

namespace tarvo {

namespace {
const QString kTeclado = u"xdotool"_qs;

// The splash is 264 pixels high and messages are lower, however long their text.
bool EsPrincipal(const QString &ventana) {
    const QByteArray medidas = Ejecutar(kTeclado, {u"getwindowgeometry"_qs, u"--shell"_qs, ventana}, true);
    const qsizetype lugar = medidas.indexOf("HEIGHT=");
    return lugar >= 0 && medidas.mid(lugar + 7, medidas.indexOf('\n', lugar) - lugar - 7).toInt() >= 450;
}
} // namespace

Carpeta::Carpeta() {
    if (!QFile::copy(QStringLiteral(TARVO_PROGRAMA), Ruta("tarvo")))
        throw std::runtime_error("no copy of the program");
    QDir(Raiz()).mkdir(u"sesion"_qs);
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
    entorno.insert(u"XDG_CONFIG_HOME"_qs, carpeta.Ruta("ajustes"));
    entorno.insert(u"XDG_DATA_HOME"_qs, carpeta.Ruta("usuario"));
    entorno.insert(u"XDG_RUNTIME_DIR"_qs, carpeta.Ruta("sesion"));
    // Under the sanitizers: the session bus library keeps memory to the end of every process.
    entorno.insert(u"ASAN_OPTIONS"_qs, u"detect_leaks=0"_qs);
    entorno.insert(u"QT_QPA_PLATFORM"_qs, u"xcb"_qs);
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
    const QByteArray salida = Ejecutar(kTeclado,
                                       {u"search"_qs, u"--all"_qs, u"--onlyvisible"_qs, u"--pid"_qs,
                                        QString::number(proceso_.processId()), u"--name"_qs, u"."_qs},
                                       true);
    return QString::fromLatin1(salida).split(u'\n', Qt::SkipEmptyParts);
}

QString ProgramaEnPantalla::BuscarPrincipal() const {
    const QStringList ventanas = VentanasVisibles();
    const auto hallada = std::find_if(ventanas.begin(), ventanas.end(), EsPrincipal);
    return hallada == ventanas.end() ? QString() : *hallada;
}

QString ProgramaEnPantalla::Activa() const {
    return QString::fromLatin1(Ejecutar(kTeclado, {u"getactivewindow"_qs}, true)).trimmed();
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

void ProgramaEnPantalla::Teclas(const char *teclas, int veces) {
    QStringList argumentos{u"key"_qs, u"--delay"_qs, u"25"_qs};
    for (int vez = 0; vez < veces; ++vez)
        argumentos += QString::fromLatin1(teclas).split(u' ');
    Ejecutar(kTeclado, argumentos);
}

void ProgramaEnPantalla::Escribir(const char *texto) {
    Ejecutar(kTeclado, {u"type"_qs, u"--delay"_qs, u"15"_qs, QString::fromUtf8(texto)});
}

void ProgramaEnPantalla::Escanear(const std::string &codigo) {
    const QString sinDemora = u"0"_qs;
    Ejecutar(kTeclado,
             {u"type"_qs, u"--args"_qs, u"1"_qs, u"--delay"_qs, sinDemora, QString::fromStdString(codigo),
              u"key"_qs, u"--delay"_qs, sinDemora, u"Return"_qs, u"Return"_qs});
}

void ProgramaEnPantalla::FotoDeFallo() const {
    if (!testing::Test::HasFailure() && std::uncaught_exceptions() == 0)
        return;
    Ejecutar(u"import"_qs, {u"-window"_qs, u"root"_qs, u"fallo-%1.png"_qs.arg(proceso_.processId())}, true);
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
    Teclas("alt+F4");
    CodigoSalida();
}

} // namespace tarvo
