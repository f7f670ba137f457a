#include "declarations/GraficoCuotas.h"

#include "core/Importe.h"
#include "core/Textos.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

using namespace Qt::StringLiterals;

GraficoCuotas::GraficoCuotas(QWidget *padre)
    : QWidget(padre)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void GraficoCuotas::mostrar(const Mensuales430 &anno, int ejercicio)
{
    m_anno = anno;
    m_maximo = m_minimo = 0;
    QStringList figuras;
    for (int mes = 1; mes <= 12; ++mes) {
        const auto &datos = anno.meses.at(static_cast<size_t>(mes - 1));
        const double cuota = datos ? datos->cuota : 0;
        m_maximo = std::max(m_maximo, cuota);
        m_minimo = std::min(m_minimo, cuota);
        if (datos)
            figuras += textoMes(mes);
    }
    setAccessibleName(msj(Msj::GraficoCuotas, QString::number(ejercicio)));
    setAccessibleDescription(figuras.join(u"; "_s));
    update();
}

QString GraficoCuotas::textoMes(int mes) const
{
    const auto &datos = m_anno.meses.at(static_cast<size_t>(mes - 1));
    return datos ? msj(Msj::GraficoCuotaMes, nombreMes(mes), textoImporte(datos->cuota))
                 : QString();
}

/// The bar's place; months without a return and quotas of 0 have one of no height.
QRectF GraficoCuotas::barra(int mes) const
{
    const auto &datos = m_anno.meses.at(static_cast<size_t>(mes - 1));
    const qreal pie = fontMetrics().height() + 2;
    const qreal alto = height() - pie - 4;
    const qreal paso = width() / 12.0;
    const double recorrido = m_maximo - m_minimo;
    const auto y = [&](double centimos) {
        return 2 + (recorrido > 0 ? alto * (m_maximo - centimos) / recorrido : alto);
    };
    const double cuota = datos ? datos->cuota : 0;
    const qreal arriba = y(std::max(cuota, 0.0));
    return {paso * (mes - 1) + paso * 0.18, arriba, paso * 0.64, y(std::min(cuota, 0.0)) - arriba};
}

void GraficoCuotas::paintEvent(QPaintEvent *)
{
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    const qreal pie = fontMetrics().height() + 2;
    for (int mes = 1; mes <= 12; ++mes) {
        const QRectF rectangulo = barra(mes);
        pintor.fillRect(rectangulo, palette().color(QPalette::Highlight));
        const QRectF letra(width() / 12.0 * (mes - 1), height() - pie, width() / 12.0, pie);
        pintor.setPen(palette().color(QPalette::WindowText));
        pintor.drawText(letra, Qt::AlignCenter, nombreMes(mes).left(1));
    }
    const double recorrido = m_maximo - m_minimo;
    const qreal cero = 2 + (height() - pie - 4) * (recorrido > 0 ? m_maximo / recorrido : 1);
    pintor.setPen(palette().color(QPalette::Mid));
    pintor.drawLine(QPointF(0, cero), QPointF(width(), cero));
}

bool GraficoCuotas::event(QEvent *evento)
{
    if (evento->type() != QEvent::ToolTip)
        return QWidget::event(evento);
    const auto *ayuda = static_cast<QHelpEvent *>(evento);
    const int mes = std::clamp(ayuda->x() * 12 / std::max(width(), 1) + 1, 1, 12);
    QToolTip::showText(ayuda->globalPos(), textoMes(mes), this);
    return true;
}
