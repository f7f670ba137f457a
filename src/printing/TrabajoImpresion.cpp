#include "printing/TrabajoImpresion.h"

#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/cDecDatos.h"
#include "declarants/cDecResumen.h"
#include "declarations/cDatos430.h"
#include "declarations/cDatos480.h"
#include "printing/DocumentoPdf.h"
#include "printing/Impreso.h"
#include "printing/Lienzo.h"
#include "printing/cImOf.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPagedPaintDevice>
#include <QPainter>

#include <stdexcept>

using namespace impreso;

static ValoresImpreso cargarValores(const cImOf &peticion)
{
    if (peticion.MODELO() == Modelo430) {
        auto &figuras = unico::la<cDatos430>();
        figuras.CargarDeclaracion(peticion.CSDE());
        return tomarValores430(figuras);
    }
    auto &figuras = unico::la<cDatos480>();
    figuras.CargarDeclaracion(peticion.CSDE());
    return tomarValores480(figuras);
}

TrabajoImpresion::TrabajoImpresion(const cImOf &peticion)
    : m_modelo(peticion.MODELO())
    , m_copias(copiasPedidas(peticion))
{
    if (m_copias.isEmpty())
        return;
    m_comunes = servicio::crear<SvrKtComunLib::cMiscelaneos>();
    auto &declarante = unico::la<cDecDatos>();
    declarante.CargarDeclarante(peticion.CSCO());
    m_nif = declarante.DNI();
    m_ejercicio = unico::la<cDecResumen>().EJERCICIO();
    m_periodo = unico::la<cDecResumen>().PERIODO();
    m_valores = cargarValores(peticion);
}

QString TrabajoImpresion::titulo() const
{
    QString tiempo = QString::number(m_ejercicio);
    if (m_modelo == Modelo430)
        tiempo += u'-' + QString::number(m_periodo).rightJustified(2, u'0');
    return msj(Msj::TituloDocumento, m_modelo, tiempo, m_nif);
}

QString TrabajoImpresion::nombreFichero(const QStringList &copias) const
{
    return nombrePdf(m_modelo, m_ejercicio, m_periodo, m_nif, copias);
}

void TrabajoImpresion::dibujar(QPainter &pintor, const QString &copia)
{
    tomarHacienda(m_valores, *m_comunes);
    const auto dibujarModelo = m_modelo == Modelo430 ? dibujar430 : dibujar480;
    dibujarModelo(pintor, m_valores, copia);
}

bool TrabajoImpresion::imprimir(QPagedPaintDevice &dispositivo, const std::function<void()> &antes)
{
    for (const QString &copia : std::as_const(m_copias)) {
        if (antes)
            antes();
        if (!paginas(dispositivo, {copia}))
            return false;
    }
    return true;
}

bool TrabajoImpresion::paginas(QPagedPaintDevice &dispositivo, const QStringList &copias)
{
    QPainter pintor;
    bool vacio = true;
    return pintor.begin(&dispositivo) && anadirPaginas(pintor, dispositivo, copias, vacio)
        && pintor.end();
}

bool TrabajoImpresion::anadirPaginas(QPainter &pintor, QPagedPaintDevice &dispositivo,
                                     const QStringList &copias, bool &vacio)
{
    for (const QString &copia : copias) {
        if (!vacio && !dispositivo.newPage())
            return false;
        vacio = false;
        dibujar(pintor, copia);
    }
    return true;
}

QByteArray TrabajoImpresion::pdf(const QStringList &copias)
{
    return documentoPdf(titulo(), [&](QPagedPaintDevice &d) { return paginas(d, copias); });
}

void prepararPagina(QPagedPaintDevice &dispositivo)
{
    if (!hayLetra()) // the form would be without a word
        throw std::runtime_error(msj(Msj::SinLetras).toStdString());
    QPageLayout disposicion(QPageSize(QPageSize::A4), QPageLayout::Portrait, {});
    disposicion.setMode(QPageLayout::FullPageMode);
    dispositivo.setPageLayout(disposicion);
}
