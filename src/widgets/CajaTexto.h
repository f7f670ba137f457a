#pragma once

#include "widgets/Caja.h"

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
