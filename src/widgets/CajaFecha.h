#pragma once

#include <QLineEdit>

/// A date box with the mask of the session's language.
class CajaFecha : public QLineEdit
{
    Q_OBJECT

public:
    explicit CajaFecha(const QString &nombre, QWidget *padre = nullptr);

    void mostrarFecha(qint32 yyyymmdd);
    /// The date typed as yyyymmdd; 0 when it is not one.
    qint32 fecha() const;

protected:
    void changeEvent(QEvent *evento) override;
    void focusInEvent(QFocusEvent *evento) override;

private:
    void ponerMascara();

    QString m_idioma; ///< order in which the mask was set
};
