// Makes the help file: ayuda <source.md> <target.pdf>
#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextStream>
#include <QTextTable>

namespace {

const QColor kAzul(10, 36, 106);
const QColor kLineas(201, 209, 227);
const QColor kCabecera(227, 232, 243);

// Headings in the blue of the title bars, with room above them; text a little apart.
void DarForma(QTextDocument &documento) {
    for (QTextBlock bloque = documento.begin(); bloque.isValid(); bloque = bloque.next()) {
        QTextCursor cursor(bloque);
        QTextBlockFormat forma = bloque.blockFormat();
        const bool titulo = forma.headingLevel() > 0;
        forma.setTopMargin(titulo ? 12 : forma.topMargin());
        forma.setBottomMargin(cursor.currentTable() != nullptr ? 0 : titulo ? 4 : 5);
        cursor.setBlockFormat(forma);
        if (!titulo)
            continue;
        cursor.select(QTextCursor::BlockUnderCursor);
        QTextCharFormat letra;
        letra.setForeground(kAzul);
        cursor.mergeCharFormat(letra);
    }
}

void DarFormaATabla(QTextTable &tabla) {
    QTextTableFormat forma = tabla.format();
    forma.setBorderBrush(kLineas);
    forma.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    forma.setBorderCollapse(true);
    forma.setBorder(0.5);
    forma.setCellPadding(4);
    forma.setCellSpacing(0);
    forma.setTopMargin(4);
    forma.setBottomMargin(6);
    forma.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    if (tabla.columns() == 2)
        forma.setColumnWidthConstraints(
            {QTextLength(QTextLength::PercentageLength, 35), QTextLength(QTextLength::PercentageLength, 65)});
    tabla.setFormat(forma);
    for (int columna = 0; columna < tabla.columns(); ++columna) {
        QTextTableCell celda = tabla.cellAt(0, columna);
        QTextCharFormat fondo = celda.format();
        fondo.setBackground(kCabecera);
        celda.setFormat(fondo);
    }
}

bool Escribir(QTextDocument &documento, const QString &ruta) {
    QPdfWriter papel(ruta);
    papel.setPageSize(QPageSize(QPageSize::A4));
    papel.setTitle(QStringLiteral("Tarvo: ayuda"));
    papel.setCreator(QStringLiteral("Tarvo"));
    documento.print(&papel);
    return QFile(ruta).size() > 0;
}

} // namespace

int main(int argc, char **argv) {
    const QGuiApplication aplicacion(argc, argv);
    const QStringList argumentos = QCoreApplication::arguments();
    QFile fuente(argumentos.value(1));
    if (argumentos.size() != 3 || !fuente.open(QIODevice::ReadOnly)) {
        QTextStream(stderr) << "Uso: ayuda <fuente.md> <destino.pdf>\n";
        return 2;
    }
    QTextDocument documento;
    QFont letra;
    letra.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans")});
    letra.setPointSizeF(10);
    documento.setDefaultFont(letra);
    documento.setMarkdown(QString::fromUtf8(fuente.readAll()));
    DarForma(documento);
    for (QTextFrame *marco : documento.rootFrame()->childFrames())
        if (auto *tabla = qobject_cast<QTextTable *>(marco))
            DarFormaATabla(*tabla);
    if (Escribir(documento, argumentos.at(2)))
        return 0;
    QTextStream(stderr) << "No se pudo escribir " << argumentos.at(2) << '\n';
    return 1;
}
