#include "printing/Membrete.h"

#include "printing/Escudo.h"
#include "printing/Piezas.h"

namespace impreso {
namespace {

constexpr QStringView DireccionWeb = u"www.varlenda.example";

constexpr Par Hacienda{u"Varlendako Foru Aldundia", u"Diputación Foral de Varlenda"};
constexpr Par Impuesto{u"Aseguru Primen gaineko Zerga", u"Impuesto sobre las Primas de Seguros"};
constexpr Par Modelo{u"Eredua /", u"Modelo"};

constexpr double Arriba = -AltoMembrete;
constexpr Caja CajaEscudo{10, Arriba, 14, 16.5};
constexpr Caja CajaHacienda{27, Arriba, 72, 9};
constexpr Caja CajaDepartamento{27, Arriba + 10, 72, 6.2};
constexpr Caja CajaImpuesto{100, Arriba, 70, 9};
constexpr Caja CajaWeb{100, Arriba + 13, 70, 3.2};
constexpr Caja CajaModelo{174, Arriba, 26, 16.5};

constexpr Estilo EstiloTitular{Letra::Times, 12, true, Tinta::Oscura};

void numeroModelo(Lienzo &lienzo, const QString &modelo)
{
    lienzo.fondo(CajaModelo, Tinta::Oscura);
    const Caja dentro = CajaModelo.dentro(1.5, 1);
    parEnLinea(lienzo, {dentro.x, dentro.y, dentro.ancho, 3.2}, Modelo,
               EstiloEtiqueta.en(Tinta::Blanco), Qt::AlignHCenter);
    lienzo.letra({Letra::Arial, 28, true, Tinta::Blanco});
    lienzo.texto({dentro.x, dentro.y + 3.2, dentro.ancho, dentro.alto - 3.2}, modelo,
                 Qt::AlignHCenter);
}

} // namespace

void dibujarMembrete(Lienzo &lienzo, const ValoresImpreso &impreso, const QString &modelo)
{
    dibujarEscudo(lienzo.pintor(), CajaEscudo.rect());
    parApilado(lienzo, CajaHacienda, Hacienda, EstiloTitular);
    parApilado(lienzo, CajaDepartamento, {impreso.haciendaEuskera, impreso.haciendaCastellano},
               EstiloEtiqueta.de(8));
    parApilado(lienzo, CajaImpuesto, Impuesto, EstiloTitular, Qt::AlignRight);
    lienzo.letra(EstiloEtiqueta.de(8).normal());
    lienzo.texto(CajaWeb, DireccionWeb.toString(), Qt::AlignRight);
    numeroModelo(lienzo, modelo);
}

} // namespace impreso
