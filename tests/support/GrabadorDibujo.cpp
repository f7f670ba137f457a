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
    void drawLines(const QLineF *, int) override {}
    void drawPath(const QPainterPath &camino) override
    {
        m_dueno.recuadros += {m_transformacion.mapRect(camino.boundingRect()),
                              m_brocha == QBrush(Qt::white, Qt::SolidPattern)};
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
    static const QMap<PaintDeviceMetric, int> medidas{
        {PdmWidth, 2100}, {PdmHeight, 2970},      {PdmDpiX, Ppp},
        {PdmDpiY, Ppp},   {PdmPhysicalDpiX, Ppp}, {PdmPhysicalDpiY, Ppp}};
    return medidas.contains(que) ? medidas[que] : QPaintDevice::metric(que);
}
