#include "support/GrabadorDibujo.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainterPath>

static constexpr int Ppp = 254; ///< ten units a millimetre
static constexpr double UnidadesMm = Ppp / 25.4;

namespace {

class Motor : public QPaintEngine
{
public:
    explicit Motor(GrabadorDibujo &dueno)
        : QPaintEngine(AllFeatures)
        , m_dueno(dueno)
    {
    }
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
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
    void drawLines(const QLineF *lineas, int cuantas) override
    {
        for (int i = 0; i < cuantas; ++i)
            m_dueno.lineas += m_transformacion.map(lineas[i]);
    }
    void drawRects(const QRectF *rectas, int cuantos) override
    {
        for (int i = 0; i < cuantos; ++i)
            anotar(rectas[i]);
    }
    void drawPath(const QPainterPath &camino) override { anotar(camino.boundingRect()); }
    void drawPolygon(const QPointF *puntos, int cuantos, PolygonDrawMode) override
    {
        anotar(QPolygonF(QList<QPointF>(puntos, puntos + cuantos)).boundingRect());
    }
    void drawTextItem(const QPointF &base, const QTextItem &item) override
    {
        const QFontMetricsF medidas(item.font());
        const QRectF caja(base.x(), base.y() - medidas.capHeight(), item.width(),
                          medidas.capHeight());
        m_dueno.textos += {item.text(), m_transformacion.mapRect(caja), m_pluma.color()};
    }

private:
    void anotar(const QRectF &rect)
    {
        const bool blanco = m_brocha.style() == Qt::SolidPattern && m_brocha.color() == Qt::white;
        m_dueno.recuadros += {m_transformacion.mapRect(rect), blanco};
    }

    GrabadorDibujo &m_dueno;
    QTransform m_transformacion;
    QPen m_pluma;
    QBrush m_brocha;
};

} // namespace

GrabadorDibujo::GrabadorDibujo()
    : m_motor(std::make_unique<Motor>(*this))
{
}

GrabadorDibujo::~GrabadorDibujo() = default;

QPaintEngine *GrabadorDibujo::paintEngine() const
{
    return m_motor.get();
}

int GrabadorDibujo::metric(PaintDeviceMetric que) const
{
    switch (que) {
    case PdmWidth:
        return 2100;
    case PdmHeight:
        return 2970;
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return Ppp;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
    default:
        return 0;
    }
}
