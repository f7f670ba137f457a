#include "printing/Lienzo.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPagedPaintDevice>

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace impreso {

static constexpr double PulgadaMm = 25.4;
static constexpr double PuntoMm = PulgadaMm / 72;
/// Size, in pixels, at which every text is laid out.
static constexpr int Cuerpo = 200;

namespace {

struct Tipo
{
    QFont fuente;
    QFontMetricsF medidas;
};

QFont fuente(Letra letra, bool negrita)
{
    QFont f(letra == Letra::Arial ? u"arial"_s : u"Times New Roman"_s);
    f.setStyleHint(letra == Letra::Arial ? QFont::SansSerif : QFont::Serif);
    f.setPixelSize(Cuerpo);
    f.setBold(negrita);
    f.setHintingPreference(QFont::PreferNoHinting);
    return f;
}

Tipo nuevoTipo(Letra letra, bool negrita)
{
    const QFont f = fuente(letra, negrita);
    return {f, QFontMetricsF(f)};
}

const Tipo &tipo(const Estilo &estilo)
{
    static const std::array<Tipo, 4> tipos
        = {nuevoTipo(Letra::Arial, false), nuevoTipo(Letra::Arial, true),
           nuevoTipo(Letra::Times, false), nuevoTipo(Letra::Times, true)};
    return tipos[(estilo.letra == Letra::Times ? 2u : 0u) + (estilo.negrita ? 1u : 0u)];
}

/// Where the page's corner lies for a painter, in device units.
QPointF esquina(const QPaintDevice &dispositivo)
{
    const auto *paginado = dynamic_cast<const QPagedPaintDevice *>(&dispositivo);
    if (!paginado)
        return {};
    const auto disposicion = paginado->pageLayout();
    return -QPointF(disposicion.paintRectPixels(dispositivo.logicalDpiX()).topLeft());
}

} // namespace

bool hayLetra()
{
    // Qt's stand-in for a missing face has no name
    return !QFontInfo(tipo(EstiloInicial).fuente).family().isEmpty();
}

Lienzo::Lienzo(QPainter &pintor)
    : m_pintor(pintor)
{
    m_pintor.save();
    const auto &dispositivo = *m_pintor.device();
    const QPointF origen = esquina(dispositivo);
    m_pintor.translate(origen);
    m_pintor.scale(dispositivo.logicalDpiX() / PulgadaMm, dispositivo.logicalDpiY() / PulgadaMm);
    m_pintor.setRenderHint(QPainter::Antialiasing);
    m_pagina = m_pintor.transform();
}

Lienzo::~Lienzo()
{
    m_pintor.restore();
}

void Lienzo::seccion(double arriba)
{
    m_estilo = EstiloInicial;
    m_pintor.setTransform(QTransform(m_pagina).translate(0, arriba));
}

QPen Lienzo::pluma(double grueso) const
{
    return QPen(QColor(Tinta::Oscura), grueso, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
}

void Lienzo::linea(double x1, double y1, double x2, double y2, double grueso)
{
    m_pintor.setPen(pluma(grueso));
    m_pintor.drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

void Lienzo::marco(const Caja &caja, double grueso)
{
    m_pintor.setPen(pluma(grueso));
    m_pintor.setBrush(Qt::NoBrush);
    m_pintor.drawRect(caja.rect());
}

void Lienzo::fondo(const Caja &caja, QRgb color)
{
    m_pintor.fillRect(caja.rect(), QColor(color));
}

void Lienzo::blanca(const Caja &caja, double grueso)
{
    m_pintor.setPen(pluma(grueso));
    m_pintor.setBrush(Qt::white);
    m_pintor.drawRect(caja.rect());
}

void Lienzo::puntos(double x1, double x2, double y)
{
    constexpr double paso = 1.2;
    QPen puntos = pluma(0.25);
    puntos.setDashPattern({1, paso / puntos.widthF() - 1});
    // dots of neighbouring rows stand under each other: they start at multiples of the step
    const double inicio = paso * std::ceil(x1 / paso);
    if (inicio >= x2)
        return;
    m_pintor.setPen(puntos);
    m_pintor.drawLine(QPointF(inicio, y), QPointF(x2, y));
}

void Lienzo::lineaCorte(double y)
{
    QPen corte = pluma(Trazo::Medio);
    corte.setDashPattern({10, 6});
    m_pintor.setPen(corte);
    m_pintor.drawLine(QPointF(MargenIzquierdo, y), QPointF(MargenDerecho, y));
}

double Lienzo::anchoTexto(const QString &texto) const
{
    return tipo(m_estilo).medidas.horizontalAdvance(texto) * m_estilo.puntos * PuntoMm / Cuerpo;
}

double Lienzo::texto(const Caja &caja, const QString &texto, Qt::AlignmentFlag alineacion)
{
    if (texto.isEmpty())
        return 0;
    const Tipo &elegido = tipo(m_estilo);
    const double natural = anchoTexto(texto);
    const double encogido = natural > caja.ancho ? caja.ancho / natural : 1;
    const double escala = m_estilo.puntos * PuntoMm / Cuerpo * encogido;
    const double ancho = natural * encogido;

    double x = caja.x;
    if (alineacion == Qt::AlignRight)
        x = caja.derecha() - ancho;
    else if (alineacion == Qt::AlignHCenter)
        x += (caja.ancho - ancho) / 2;
    const double base = caja.y + (caja.alto + elegido.medidas.capHeight() * escala) / 2;

    const QTransform anterior = m_pintor.transform();
    m_pintor.translate(x, base);
    m_pintor.scale(escala, escala);
    m_pintor.setFont(elegido.fuente);
    m_pintor.setPen(QColor::fromRgba(m_estilo.color));
    m_pintor.drawText(QPointF(0, 0), texto);
    m_pintor.setTransform(anterior);
    return ancho;
}

} // namespace impreso
