#include "desktop/ventanas/solocaracteres.h"

#include "desktop/ventanas/avisarcampo.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QValidator>

#include <algorithm>

namespace tarvo {

namespace {

// The field itself takes back whatever its validator finds invalid, before anybody is told of a change.
class FiltroCaracteres final : public QValidator {
  public:
    FiltroCaracteres(QLineEdit *campo, const QString &permitidos)
        : QValidator(campo), campo_(campo), permitidos_(permitidos), texto_(campo->text()) {
        connect(campo, &QLineEdit::selectionChanged, this, &FiltroCaracteres::Recordar);
        connect(campo, &QLineEdit::textChanged, this, [this](const QString &texto) {
            texto_ = texto;
            Recordar();
        });
        connect(campo, &QLineEdit::cursorPositionChanged, this, &FiltroCaracteres::Recordar);
        Recordar();
        campo->installEventFilter(this);
        campo->setValidator(this);
    }

    State validate(QString &nuevo, int &cursor) const override {
        if (nuevo == texto_)
            return Acceptable;
        // What has come in ends at the cursor.
        const QStringView entrado = QStringView(nuevo).mid(inicio_, qMax(0, cursor - inicio_));
        if (EsDelPrograma() || std::ranges::all_of(entrado, [this](QChar c) { return Admite(c); }))
            return Acceptable;
        AvisarCampo(campo_, Motivo());
        return Invalid;
    }

  protected:
    bool eventFilter(QObject *, QEvent *evento) override {
        if (evento->type() != QEvent::KeyPress)
            return false;
        const auto *tecla = static_cast<QKeyEvent *>(evento);
        if ((tecla->modifiers() & Qt::ControlModifier) != 0) // Ctrl+V is no letter
            return false;
        const QString texto = tecla->text();
        return texto.size() == 1 && texto.front().isPrint() && !Admite(texto.front());
    }

  private:
    // The cursor may move on before the text that it stands behind is judged.
    void Recordar() {
        if (campo_->text() == texto_)
            inicio_ = campo_->hasSelectedText() ? campo_->selectionStart() : campo_->cursorPosition();
    }
    bool Admite(QChar c) const { return permitidos_.contains(c); }
    // A text that the program puts there leaves nothing to undo, one that undoing brings back can be redone;
    // after any other change it is the other way round.
    bool EsDelPrograma() const { return !campo_->isUndoAvailable() || campo_->isRedoAvailable(); }
    QString Motivo() const {
        QStringList signos;
        for (const QChar c : permitidos_)
            if (!c.isDigit())
                signos << QStringLiteral("«%1»").arg(c);
        signos.prepend(QStringLiteral("cifras"));
        return QStringLiteral("No se agregó el texto: este campo sólo admite %1.")
            .arg(signos.join(QStringLiteral(", ")));
    }

    QLineEdit *campo_;
    QString permitidos_;
    QString texto_;  // before the change that is being judged
    int inicio_ = 0; // where a text would have come in then
};

} // namespace

void SoloCaracteres(QLineEdit *campo, const QString &permitidos) {
    new FiltroCaracteres(campo, permitidos);
}

} // namespace tarvo
