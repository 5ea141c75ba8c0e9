#include "shell/atajos.h"

#include <QIODevice>
#include <QList>

#include <algorithm>
#include <iterator>

namespace tarvo {

namespace {

constexpr qint64 kTamanoMayor = 64 * 1024LL; // bytes; with every entry named a file has less than 2 KB
constexpr int kFichasGrupo = 3;
constexpr const char *kCabeza[] = {"", "[Nerlo-Menus-Shortcuts]", "[V-1-0-0]"};

QString Texto(QStringView texto) {
    return texto.toString();
}

bool EsFuncion(int tecla) {
    return tecla >= Qt::Key_F1 && tecla <= Qt::Key_F24;
}

bool EsLetra(int tecla) {
    return tecla >= Qt::Key_A && tecla <= Qt::Key_Z;
}

// The function keys, but F10, which opens the menu bar, and Ctrl (with or without Shift) and a letter, but
// what edits text or works inside the windows, as the figures do. Ctrl with Alt writes a character on many
// keyboards.
bool EsLibre(QKeyCombination tecla) {
    static const QList<int> delTexto{Qt::Key_A, Qt::Key_C, Qt::Key_D, Qt::Key_U,
                                     Qt::Key_V, Qt::Key_X, Qt::Key_Y, Qt::Key_Z};
    static const QList<int> deVentanas{Qt::Key_B, Qt::Key_G, Qt::Key_I, Qt::Key_K, Qt::Key_N, Qt::Key_R};
    const Qt::KeyboardModifiers con = tecla.keyboardModifiers();
    if ((con & (Qt::AltModifier | Qt::MetaModifier)) != 0) // the desktop's own
        return false;
    if (EsFuncion(tecla.key()))
        return tecla != QKeyCombination(Qt::Key_F10) &&
               tecla != QKeyCombination(Qt::ShiftModifier, Qt::Key_F10);
    if (!EsLetra(tecla.key()) || (con & ~Qt::ShiftModifier) != Qt::ControlModifier)
        return false;
    return !delTexto.contains(tecla.key()) && !deVentanas.contains(tecla.key());
}

QByteArray Ficha(const QByteArray &texto) {
    return texto + '\0';
}

const DatosEntrada *EntradaDeClave(const QString &clave) {
    const std::span<const DatosEntrada> todas = Entradas();
    const auto hallada =
        std::find_if(todas.begin(), todas.end(), [&](const DatosEntrada &d) { return d.clave == clave; });
    return hallada == todas.end() ? nullptr : &*hallada;
}

bool EsAsignable(Entrada entrada) {
    const std::vector<Entrada> &asignables = Atajos::Asignables();
    return std::find(asignables.begin(), asignables.end(), entrada) != asignables.end();
}

} // namespace

Atajos::Atajos() {
    for (const Entrada entrada : Asignables())
        if (const QKeySequence tecla = Inicial(entrada); !tecla.isEmpty())
            teclas_[entrada] = tecla;
}

const std::vector<Entrada> &Atajos::Asignables() {
    static const std::vector<Entrada> entradas = [] {
        std::vector<Entrada> lista;
        for (const DatosEntrada &datos : Entradas())
            if (datos.menu != Menu::Emergente && !datos.submenu)
                lista.push_back(datos.entrada);
        return lista;
    }();
    return entradas;
}

QKeySequence Atajos::Inicial(Entrada entrada) {
    return QKeySequence(Texto(DatosDe(entrada).atajo), QKeySequence::PortableText);
}

QKeySequence Atajos::De(Entrada entrada) const {
    const auto tecla = teclas_.find(entrada);
    return tecla == teclas_.end() ? QKeySequence() : tecla->second;
}

const Entrada *Atajos::Duena(const QKeySequence &tecla, Entrada salvo) const {
    for (const auto &[entrada, suya] : teclas_)
        if (entrada != salvo && suya == tecla)
            return &entrada;
    return nullptr;
}

QString Atajos::MotivoRechazo(Entrada entrada, const QKeySequence &tecla) const {
    if (tecla.isEmpty())
        return QStringLiteral("Presione la tecla que quiere usar.");
    if (tecla == Inicial(entrada) && Duena(tecla, entrada) == nullptr)
        return {};
    if (tecla.count() > 1 || !EsLibre(tecla[0]))
        return QStringLiteral("La tecla %1 está reservada para escribir y moverse por las ventanas. Use una "
                              "tecla de función, o Ctrl con una letra.")
            .arg(tecla.toString(QKeySequence::NativeText));
    if (const Entrada *duena = Duena(tecla, entrada))
        return QStringLiteral("La tecla %1 ya es la de \"%2\".")
            .arg(tecla.toString(QKeySequence::NativeText), NombreDe(*duena));
    return {};
}

bool Atajos::Restablecer(Entrada entrada) {
    const QKeySequence inicial = Inicial(entrada);
    if (Duena(inicial, entrada) != nullptr)
        return false;
    Poner(entrada, inicial);
    return true;
}

QString Atajos::NombreDe(Entrada entrada) {
    QString nombre = Texto(DatosDe(entrada).texto).remove(u'&');
    for (const DatosEntrada &datos : Entradas())
        if (datos.submenu == DatosDe(entrada).menu)
            nombre.prepend(Texto(datos.texto).remove(u'&') + QStringLiteral(", "));
    return nombre;
}

void Atajos::Poner(Entrada entrada, const QKeySequence &tecla) {
    if (tecla.isEmpty())
        teclas_.erase(entrada);
    else
        teclas_[entrada] = tecla;
}

bool Atajos::HayRepetidas() const {
    return std::any_of(teclas_.begin(), teclas_.end(),
                       [this](const auto &una) { return Duena(una.second, una.first) != nullptr; });
}

void Atajos::Leer(QIODevice &origen) {
    const QList<QByteArray> fichas = origen.read(kTamanoMayor).split('\0');
    if (fichas.size() < qsizetype(std::size(kCabeza)) ||
        !std::equal(std::begin(kCabeza), std::end(kCabeza), fichas.begin()))
        return;
    Atajos leidos;
    for (qsizetype i = std::size(kCabeza); i + kFichasGrupo <= fichas.size(); i += kFichasGrupo) {
        if (fichas[i] != "I" && fichas[i] != "K")
            break;
        const DatosEntrada *datos = EntradaDeClave(QString::fromUtf8(fichas[i + 2]));
        if (fichas[i] == "I" || datos == nullptr || !EsAsignable(datos->entrada))
            continue;
        const QKeySequence tecla(QString::fromUtf8(fichas[i + 1]), QKeySequence::PortableText);
        const bool vale = tecla.count() == 1 && (EsLibre(tecla[0]) || tecla == Inicial(datos->entrada));
        leidos.Poner(datos->entrada, vale ? tecla : Inicial(datos->entrada));
    }
    if (!leidos.HayRepetidas())
        *this = leidos;
}

QByteArray Atajos::Archivo() const {
    QByteArray archivo;
    for (const char *ficha : kCabeza)
        archivo += Ficha(ficha);
    int numero = 0;
    for (const DatosEntrada &datos : Entradas()) {
        ++numero;
        const QKeySequence tecla = De(datos.entrada);
        if (tecla.isEmpty())
            continue;
        const QByteArray nombre = Ficha(Texto(datos.clave).toUtf8());
        archivo += Ficha("I") + Ficha(QByteArray::number(numero)) + nombre;
        archivo += Ficha("K") + Ficha(tecla.toString(QKeySequence::PortableText).toUtf8()) + nombre;
    }
    return archivo;
}

} // namespace tarvo
