#pragma once

#include "widgets/Caja.h"

#include <QLineEdit>

/// A text or code box. `limite` bounds what can be typed; a longer stored text is shown whole.
class CajaTexto : public Caja
{
    Q_OBJECT

public:
    enum Filtro { Texto, Cifras };

    CajaTexto(const QString &nombre, int limite, Filtro filtro = Texto, QWidget *padre = nullptr);

    /// Room for `limite` capitals; a short box keeps that width.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    QString admitir(QString &antes, const QString &insertado, QString &despues) override;

private:
    QChar admitido(QChar c, bool pegado) const;

    int m_limite;
    Filtro m_filtro;
};

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
