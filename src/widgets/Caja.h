#pragma once

#include "widgets/Confirmable.h"

#include <QLineEdit>

#include <functional>

/// Base of the entry boxes: selects its whole text on entry, filters whatever is typed, pasted or
/// dropped, and gives its text to the record when it loses the focus or is told to.
class Caja : public QLineEdit, public Confirmable
{
    Q_OBJECT

public:
    explicit Caja(const QString &nombre, QWidget *padre = nullptr);

    /// Takes the text into the record; false when it is refused (the user has been told). Called
    /// only when the user has changed the text.
    std::function<bool()> alConfirmar;

    bool confirmar() override;
    bool pendiente() const override { return m_pendiente; }
    void descartar() override;

    /// Shows a text of the program's; nothing is pending afterwards.
    void mostrar(const QString &texto);

    /// Locked: read only, no tab stop, pale yellow with dark text under any theme.
    void bloquear(bool bloqueada);

protected:
    /// What of `insertado` may be placed between `antes` and `despues`, both of which it may
    /// change; null refuses the whole change.
    virtual QString admitir(QString &antes, const QString &insertado, QString &despues) = 0;

    /// Beeps softly and says in the status bar why something typed was dropped.
    void avisarDescartado(const QString &texto);

    void focusInEvent(QFocusEvent *evento) override;
    void focusOutEvent(QFocusEvent *evento) override;
    void hideEvent(QHideEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;

private:
    void alEditar(const QString &nuevo);

    QString m_mostrado; ///< by the program
    QString m_anterior;
    bool m_pendiente = false;
    bool m_confirmando = false;
    bool m_entradaConRaton = false;
};
