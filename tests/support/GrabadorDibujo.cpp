#include "support/GrabadorDibujo.h"

#include <QFontMetricsF>
#include <QPainterPath>

static constexpr int Ppp = 254; ///< ten units a millimetre
static constexpr double UnidadesMm = Ppp / 25.4;

namespace {

class Motor : public MotorLlano
{
public:
    explicit Motor(GrabadorDibujo &dueno)
        : m_dueno(dueno)
    {
    }
    void updateState(const QPaintEngineState &estado) override
    {
        const auto cambios = estado.state();
        if (cambios & DirtyTransform)
            m_transformacion
                = estado.transform() * QTransform::fromScale(1 / UnidadesMm, 1 / UnidadesMm);
        if (cambios & DirtyPen)
            m_pluma = estado.pen();
        if (cambios & DirtyBrush)
            m_brocha = estado.brush();
    }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawLines(const QLineF *, int) override {}
    void drawPath(const QPainterPath &camino) override
    {
        m_dueno.recuadros += {m_transformacion.mapRect(camino.boundingRect()),
                              m_brocha == Qt::NoBrush ? QString() : m_brocha.color().name()};
    }
    void drawTextItem(const QPointF &base, const QTextItem &item) override
    {
        const QFontMetricsF medidas(item.font());
        const QRectF caja(base.x(), base.y() - medidas.capHeight(), item.width(),
                          medidas.capHeight());
        m_dueno.textos += {item.text(), m_transformacion.mapRect(caja), m_pluma.color()};
    }

private:
    GrabadorDibujo &m_dueno;
    QTransform m_transformacion;
    QPen m_pluma;
    QBrush m_brocha;
};

} // namespace

GrabadorDibujo::GrabadorDibujo()
    : PaginaLlana({2100, 2970}, Ppp)
{
    motor = std::make_unique<Motor>(*this);
}
