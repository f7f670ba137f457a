#include "Calco.h"

#include <QMap>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

static constexpr int Ppp = 1200; ///< of QPdfWriter

namespace {

class Motor : public QPaintEngine
{
public:
    explicit Motor(QList<Calco::Llamada> &llamadas)
        : QPaintEngine(AllFeatures)
        , m_llamadas(llamadas)
    {
    }
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState &estado) override
    {
        const auto cambios = estado.state();
        if (cambios & DirtyTransform)
            anotar([t = estado.transform()](QPainter &p) { p.setTransform(t); });
        if (cambios & DirtyPen)
            anotar([pluma = estado.pen()](QPainter &p) { p.setPen(pluma); });
        if (cambios & DirtyBrush)
            anotar([brocha = estado.brush()](QPainter &p) { p.setBrush(brocha); });
        if (cambios & DirtyFont)
            anotar([fuente = estado.font()](QPainter &p) { p.setFont(fuente); });
    }
    void drawPath(const QPainterPath &camino) override
    {
        anotar([camino](QPainter &p) { p.drawPath(camino); });
    }
    void drawRects(const QRectF *rectas, int cuantas) override
    {
        for (int i = 0; i < cuantas; ++i)
            anotar([una = rectas[i]](QPainter &p) { p.drawRect(una); });
    }
    void drawLines(const QLineF *lineas, int cuantas) override
    {
        for (int i = 0; i < cuantas; ++i)
            anotar([una = lineas[i]](QPainter &p) { p.drawLine(una); });
    }
    void drawTextItem(const QPointF &base, const QTextItem &item) override
    {
        anotar([base, texto = item.text()](QPainter &p) { p.drawText(base, texto); });
    }
    void drawPixmap(const QRectF &lugar, const QPixmap &imagen, const QRectF &parte) override
    {
        anotar([=](QPainter &p) { p.drawPixmap(lugar, imagen, parte); });
    }

private:
    void anotar(Calco::Llamada llamada) { m_llamadas.append(std::move(llamada)); }

    QList<Calco::Llamada> &m_llamadas;
};

} // namespace

Calco::Calco()
    : m_motor(std::make_unique<Motor>(llamadas))
{
}

Calco::~Calco() = default;

QPaintEngine *Calco::paintEngine() const
{
    return m_motor.get();
}

int Calco::metric(PaintDeviceMetric que) const
{
    static const QMap<PaintDeviceMetric, int> medidas{
        {PdmWidth, 9921},         {PdmHeight, 14031},
        {PdmDpiX, Ppp},           {PdmDpiY, Ppp},
        {PdmPhysicalDpiX, Ppp},   {PdmPhysicalDpiY, Ppp},
        {PdmDevicePixelRatio, 1}, {PdmDevicePixelRatioScaled, int(devicePixelRatioFScale())}};
    return medidas.contains(que) ? medidas[que] : QPaintDevice::metric(que);
}
