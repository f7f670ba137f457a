#pragma once

#include "widgets/Caja.h"

/// An amount box: 13 integer digits and 2 decimals, shown as "1.234.567,89", empty for zero. The
/// keypad's point types a comma; text that cannot be an amount cannot be typed or pasted; a sum
/// ("100+25,5-3") becomes its result, and a pasted amount loses its currency and blanks.
class CajaImporte : public Caja
{
    Q_OBJECT

public:
    explicit CajaImporte(const QString &nombre, QWidget *padre = nullptr);

    /// Takes an amount in cents that differs from the one shown last; false when it is refused (the
    /// user has been told).
    std::function<bool(double)> alCambiar;

    void mostrarImporte(double centimos);
    /// The amount shown last by the program, in cents.
    double importe() const { return m_importe; }

    QSize sizeHint() const override;

protected:
    QString admitir(QString &antes, const QString &insertado, QString &despues) override;
    void keyPressEvent(QKeyEvent *evento) override;

private:
    bool tomar();

    double m_importe = 0;
    bool m_conPuntosNuestros = false;
};
