#include "campaign/ImpresionVarias.h"

#include "campaign/RegistrosPrestados.h"
#include "core/GuardarFichero.h"
#include "core/Textos.h"
#include "dataservice/ErrorDatos.h"
#include "printing/DocumentoPdf.h"
#include "printing/TrabajoImpresion.h"
#include "printing/cImprimirVarias.h"

#include <QDir>
#include <QFileDevice>
#include <QFileInfo>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>

namespace impresionVarias {

static void anotar(FilaImprimir &fila, const QString &motivo, const QString &ruta = {})
{
    fila.estado = motivo.isEmpty() ? FilaImprimir::Hecha : FilaImprimir::NoHecha;
    fila.motivo = motivo;
    fila.fichero = motivo.isEmpty() ? QDir::toNativeSeparators(ruta) : QString();
}

/// The job of one of them as it is stored now: with a backup restored meanwhile its key may be
/// another return's.
static TrabajoImpresion preparar(const FilaImprimir &fila, const cImOf &opciones)
{
    auto &cabecera = unico::la<cDecResumen>();
    cabecera.TomarDeclarante(fila.csco, fila.dni, fila.nombre);
    const auto guardadas = cabecera.CargarDeclaraciones();
    const auto hallada = std::ranges::find(guardadas, fila.csde, &DeclaracionListada::csde);
    if (hallada == guardadas.end() || !(*hallada == fila.cabecera))
        throw ErrorDatos(Fallo::SinDeclaracion, fila.dni + u' ' + fila.cabecera.nombre());
    cabecera.TomarDeclaracion(*hallada);
    auto &peticion = unico::la<cImOf>();
    peticion = opciones;
    peticion.CSCO(fila.csco);
    peticion.CSDE(fila.csde);
    peticion.MODELO(fila.cabecera.modelo);
    return TrabajoImpresion(peticion);
}

/// Does `hacer` with the job of each, until it or `seguir` says no: false then.
template <class Hacer>
static bool recorrer(cImprimirVarias &varias, const Seguir &seguir, const Hacer &hacer)
{
    const RegistrosPrestados prestados;
    for (qint64 numero = 0; FilaImprimir & fila : varias.filas()) {
        if (!seguir(++numero))
            return false;
        try {
            TrabajoImpresion trabajo = preparar(fila, varias.PETICION());
            if (!hacer(fila, trabajo))
                return false;
        } catch (...) {
            anotar(fila, textoFalloActual());
        }
    }
    return true;
}

/// Those that were not come to.
static void anotarResto(cImprimirVarias &varias)
{
    for (FilaImprimir &fila : varias.filas())
        if (fila.estado == FilaImprimir::Pendiente)
            anotar(fila, msj(Msj::ImpresionDetenida));
}

static QString guardar(const FilaImprimir &fila, TrabajoImpresion &trabajo, const QString &ruta,
                       SiExiste siExiste, bool &lleno)
{
    const bool sustituir = siExiste == SiExiste::Sustituir
        || (siExiste == SiExiste::SustituirVistos && fila.existia);
    if (!sustituir && QFileInfo::exists(ruta))
        return msj(Msj::FicheroYaExiste, QDir::toNativeSeparators(ruta));
    const QByteArray pdf = trabajo.pdf(trabajo.copias());
    return pdf.isEmpty() ? msj(Msj::PdfVacio) : guardarFichero(ruta, pdf, &lleno);
}

QString enCarpeta(cImprimirVarias &varias, const QString &carpeta, SiExiste siExiste,
                  const Seguir &seguir)
{
    QString motivo;
    varias.Empezar();
    recorrer(varias, seguir, [&](FilaImprimir &fila, TrabajoImpresion &trabajo) {
        bool lleno = false;
        const QString ruta = QDir(carpeta).filePath(trabajo.nombreFichero(trabajo.copias()));
        anotar(fila, guardar(fila, trabajo, ruta, siExiste, lleno), ruta);
        if (lleno)
            motivo = fila.motivo;
        return !lleno;
    });
    anotarResto(varias);
    return motivo;
}

QString enFichero(cImprimirVarias &varias, const QString &ruta, const Seguir &seguir)
{
    bool entero = false;
    varias.Empezar();
    const auto dibujar = [&](QPagedPaintDevice &dispositivo, const QFileDevice &fichero) {
        QPainter pintor(&dispositivo);
        bool vacio = true;
        const auto anadir = [&](FilaImprimir &fila, TrabajoImpresion &trabajo) {
            const bool bien = trabajo.anadirPaginas(pintor, dispositivo, trabajo.copias(), vacio);
            anotar(fila, bien ? QString() : msj(Msj::PdfVacio), ruta);
            return bien && fichero.error() == QFileDevice::NoError;
        };
        return pintor.isActive() && recorrer(varias, seguir, anadir) && !vacio && pintor.end();
    };
    const QString titulo = msj(Msj::TituloDocumentoVarias, QString::number(varias.filas().size()));
    QString motivo = guardarFichero(ruta, [&](QFileDevice &fichero) {
        entero = escribirPdf(fichero, titulo,
                             [&](QPagedPaintDevice &d) { return dibujar(d, fichero); });
        return entero;
    });
    if (!entero || !motivo.isEmpty())
        for (FilaImprimir &fila : varias.filas())
            if (fila.estado != FilaImprimir::NoHecha)
                anotar(fila, motivo.isEmpty() ? msj(Msj::ImpresionDetenida) : motivo);
    return motivo;
}

QString enImpresora(cImprimirVarias &varias, const QString &nombre,
                    const std::function<bool(TrabajoImpresion &)> &enviar, const Seguir &seguir)
{
    QString motivo;
    varias.Empezar();
    recorrer(varias, seguir, [&](FilaImprimir &fila, TrabajoImpresion &trabajo) {
        if (!enviar(trabajo))
            motivo = msj(Msj::ErrorImpresora, nombre);
        anotar(fila, motivo);
        return motivo.isEmpty();
    });
    anotarResto(varias);
    return motivo;
}

} // namespace impresionVarias
