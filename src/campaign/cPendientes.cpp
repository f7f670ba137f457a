#include "campaign/cPendientes.h"

#include "campaign/ColumnasCsv.h"
#include "core/CEntrada.h"
#include "core/Csv.h"
#include "core/Servicios.h"
#include "core/Unico.h"
#include "dataservice/ClaveOrden.h"
#include "declarants/cDecLista.h"
#include "declarations/Clases480.h"
#include "declarations/EntradaTexto.h"

#include <algorithm>
#include <bit>
#include <tuple>

QString textoEstado(EstadoPendiente estado)
{
    static constexpr Msj textos[] = {Msj::EstadoGuardada, Msj::EstadoPendiente,
                                     Msj::EstadoFaltaAnterior, Msj::RegistroDanado};
    return msj(textos[static_cast<int>(estado)]);
}

CabeceraListada cPendientes::UltimaTerminada(const QDate &hoy)
{
    const auto &entrada = unico::la<CEntrada>();
    const int ultimo = cuentaDeMes(entrada.EJERMAX(), entrada.PERMAX());
    const auto mes = mesDeCuenta(std::min(cuentaDeMes(hoy.year(), hoy.month()) - 1, ultimo));
    cPendientes estado;
    estado.CABECERA(static_cast<qint16>(mes.ejercicio), mes.mes);
    return estado.m_cabecera;
}

void cPendientes::CABECERA(qint16 ejercicio, int mes)
{
    if (mes == 0)
        m_cabecera = {ejercicio, PeriodicidadAnual, PeriodoAnual, Modelo480, Tipologia480};
    else
        m_cabecera
            = {ejercicio, PeriodicidadMensual, static_cast<quint8>(mes), Modelo430, Tipologia430};
}

bool cPendientes::DentroDeLimites() const
{
    const auto &entrada = unico::la<CEntrada>();
    const int cuenta = cuentaDeMes(m_cabecera.ejercicio, m_cabecera.periodo);
    return cuentaDeMes(entrada.EJERMIN(), entrada.PERMIN()) <= cuenta
        && cuenta <= cuentaDeMes(entrada.EJERMAX(), entrada.PERMAX());
}

/// The first month after those that have to be there before a return.
static int finDeAnteriores(const CabeceraListada &c)
{
    return cuentaDeMes(c.ejercicio, c.periodo) + (c.tipologia == Tipologia480 ? 1 : 0);
}

/// The months without a 430; nothing when some of them lie too far back for the row to say which.
static std::optional<QList<MesSinDeclarar>> mesesQueFaltan(const Registro &fila, int hasta)
{
    using enum FilaPendiente::Columna;
    QList<MesSinDeclarar> meses;
    const int primero = fila[PRIMERO].toInt();
    const int cuantos = fila[CUANTOS].toInt();
    if (primero == 0 || primero >= hasta || hasta - primero == cuantos)
        return meses;
    const auto vistos = static_cast<quint64>(fila[ANTERIORES].toLongLong());
    const int desde = std::max(primero, hasta - FilaPendiente::MesesVistos);
    if (cuantos - std::popcount(vistos) != desde - primero)
        return {};
    for (int mes = desde; mes < hasta; ++mes)
        if ((vistos >> (hasta - 1 - mes) & 1) == 0)
            meses.append(mesDeCuenta(mes));
    return meses;
}

QList<DeclarantePendiente> cPendientes::Cargar() const
{
    using enum FilaPendiente::Columna;
    QList<DeclarantePendiente> lista;
    QList<qsizetype> incompletas;
    const int hasta = finDeAnteriores(m_cabecera);
    servicioDeclaracion()->RecorrerPendientes(
        m_cabecera.ejercicio, m_cabecera.modelo, m_cabecera.periodo, [&](const Registro &fila) {
            if (esDanado(fila)) {
                incompletas.append(lista.size());
                lista.append({fila[CSCO].toInt(), {}, {}, 0, 0, {}, true});
                return true;
            }
            const auto meses = mesesQueFaltan(fila, hasta);
            if (!meses)
                incompletas.append(lista.size());
            lista.append({fila[CSCO].toInt(), fila[DNI].toString(), fila[NOMBRE].toString(),
                          fila[CSDE].toInt(), fila[IMPORTE].toDouble(),
                          meses.value_or(QList<MesSinDeclarar>()), fila[IMPORTE].isNull()});
            return true;
        });
    for (const qsizetype una : std::as_const(incompletas))
        if (auto entera = CargarDeclarante(lista[una].csco))
            lista[una] = *std::move(entera);
    return lista;
}

std::optional<DeclarantePendiente> cPendientes::CargarDeclarante(qint32 csco) const
{
    const auto declarante = cDecLista::CargarDeclarante(csco);
    if (!declarante)
        return {};
    cDecResumen resumen;
    resumen.TomarDeclarante(csco, declarante->dni, declarante->nombre);
    DeclarantePendiente fila{csco, declarante->dni, declarante->nombre, 0, 0, {}, false};
    DeclaracionListada pedida{m_cabecera};
    for (const auto &guardada : resumen.CargarDeclaraciones())
        if (guardada == m_cabecera)
            pedida = guardada;
    fila.csde = pedida.csde;
    fila.importe = pedida.importe;
    fila.danada = declarante->danado || pedida.danada;
    resumen.TomarDeclaracion(pedida);
    fila.faltan = resumen.MesesSinDeclarar();
    return fila;
}

std::pair<QByteArray, qsizetype>
cPendientes::Plantilla(const QList<DeclarantePendiente> &lista) const
{
    const bool anual = m_cabecera.tipologia == Tipologia480;
    QStringList titulos{tituloColumna(ColumnaCsv::Dni), tituloNombre(),
                        tituloColumna(ColumnaCsv::Ejercicio)};
    if (!anual)
        for (const auto que : {ColumnaCsv::Periodo, ColumnaCsv::Base, ColumnaCsv::BaseRectificacion,
                               ColumnaCsv::CuotaRectificacion})
            titulos += tituloColumna(que);
    for (int numero = 1; anual && numero <= UltimaCasilla480; ++numero)
        if (casillaEntrada(numero))
            titulos += nombreCasilla(numero);
    QByteArray texto = csv::Marca.toByteArray() + csv::linea(titulos);
    qsizetype cuantos = 0;
    for (const auto &fila : lista) {
        if (fila.csde != 0 || fila.danada)
            continue;
        QStringList campos{fila.dni, fila.nombre, QString::number(m_cabecera.ejercicio)};
        if (!anual)
            campos += QString::number(m_cabecera.periodo);
        campos.resize(titulos.size());
        texto += csv::linea(campos);
        ++cuantos;
    }
    return {texto, cuantos};
}

QList<FilaImprimir> cPendientes::ParaImprimir(const QList<DeclarantePendiente> &lista) const
{
    QList<FilaImprimir> filas;
    for (const auto &una : lista)
        if (una.csde != 0) // a damaged one too: why it is not printed is told
            filas.append({una.csco, una.csde, una.dni, una.nombre, m_cabecera});
    return filas;
}

void cPendientes::Colocar(QList<DeclarantePendiente> &lista, DeclarantePendiente fila)
{
    const auto clave
        = [](const DeclarantePendiente &f) { return std::make_tuple(claveOrden(f.nombre), f.dni); };
    const auto lugar = std::ranges::lower_bound(lista, clave(fila), std::less(), clave);
    lista.insert(lugar, std::move(fila));
}
