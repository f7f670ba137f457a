#include "printing/MarcaCopia.h"

#include "printing/Copias.h"
#include "printing/Lienzo.h"

#include <algorithm>

namespace impreso {
namespace {

struct Marca
{
    QStringView copia;
    QStringView euskera;
    QStringView castellano;
    QRgb color; ///< translucent
    double puntos;
};

constexpr Marca Marcas[] = {
    {CopiaAdministracion, u"ADMINISTRAZIOARENTZAKO ALEA", u"EJEMPLAR PARA LA ADMINISTRACIÓN",
     0x581f4e8c, 12},
    {CopiaInteresado, u"INTERESDUNARENTZAKO ALEA", u"EJEMPLAR PARA EL INTERESADO", 0x581c7a3e, 12},
    {CopiaBorrador, u"ZIRRIBORROA", u"BORRADOR", 0x58b02318, 21},
};

void sello(QPainter &pintor, const QRectF &lugar, const QColor &color)
{
    pintor.setBrush(Qt::NoBrush);
    pintor.setPen(QPen(color, 1));
    pintor.drawRoundedRect(lugar.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    pintor.setPen(QPen(color, 0.3));
    pintor.drawRoundedRect(lugar.adjusted(1.8, 1.8, -1.8, -1.8), 2, 2);
}

} // namespace

void dibujarMarca(Lienzo &lienzo, QStringView copia)
{
    const auto marca = std::ranges::find(Marcas, copia, &Marca::copia);
    if (marca == std::end(Marcas))
        return;
    lienzo.seccion(0);
    sello(lienzo.pintor(), CajaMarca.rect(), QColor::fromRgba(marca->color));
    lienzo.letra({Letra::Arial, marca->puntos, true, marca->color});
    const Caja dentro = CajaMarca.dentro(4, 3.5);
    const double mitad = dentro.alto / 2;
    lienzo.texto({dentro.x, dentro.y, dentro.ancho, mitad}, marca->euskera.toString(),
                 Qt::AlignHCenter);
    lienzo.texto({dentro.x, dentro.y + mitad, dentro.ancho, mitad}, marca->castellano.toString(),
                 Qt::AlignHCenter);
}

} // namespace impreso
