#include "app/DialogosVentana.h"

#include "core/Textos.h"
#include "core/Unico.h"
#include "core/cFecha.h"
#include "dataservice/ErrorDatos.h"
#include "widgets/Ficheros.h"
#include "widgets/Mensajes.h"
#include "widgets/Navegador.h"

#include <QDir>
#include <QLocale>
#include <QWidget>

using namespace Qt::StringLiterals;

static QWidget *ventana(quintptr padre)
{
    return padre ? QWidget::find(padre) : nullptr;
}

static QString textoFecha(const QDateTime &momento)
{
    const QDate dia = momento.date();
    const qint32 numero = dia.year() * 10000 + dia.month() * 100 + dia.day();
    return unico::la<cFecha>().LongToString(numero) + momento.toString(u" HH:mm"_s);
}

static QString textoResumen(const ResumenBase &resumen)
{
    return msj(Msj::ResumenDatos, textoFecha(resumen.fecha), QString::number(resumen.declarantes),
               QString::number(resumen.declaraciones));
}

void DialogosVentana::abrirDireccion(const QString &direccion, quintptr padre)
{
    if (!navegador::abrir(QUrl(direccion)))
        mensajes::aviso(ventana(padre), msj(Msj::TituloSinNavegador), msj(Msj::SinNavegador));
}

void DialogosVentana::informarAsistencia(const QString &direccion, quintptr padre)
{
    mensajes::informacion(ventana(padre), msj(Msj::MenuDescripcionServicio),
                          msj(Msj::InfoAsistencia, direccion));
}

void DialogosVentana::copiaHecha(const QString &ruta, qint64 bytes, const QDateTime &fecha,
                                 quintptr padre)
{
    const QString tamano
        = QLocale(QLocale::Spanish).formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
    mensajes::informacion(
        ventana(padre), msj(Msj::MenuCopiaSeguridad),
        msj(Msj::CopiaHecha, QDir::toNativeSeparators(ruta), tamano, textoFecha(fecha)));
}

QString DialogosVentana::elegirCopia(const QString &propuesta, const QString &filtro,
                                     quintptr padre)
{
    // what the service says of the patterns is Castilian, whatever the session's language
    const QString propio = msj(Msj::FiltroCopias) + u' ' + filtro.mid(filtro.indexOf(u'('));
    return ficheros::abrir(ventana(padre), msj(Msj::TituloElegirCopia), propuesta, propio);
}

bool DialogosVentana::confirmarRestauracion(const std::optional<ResumenBase> &actual,
                                            const ResumenBase &copia, quintptr padre)
{
    return mensajes::pregunta(ventana(padre), msj(Msj::MenuRestaurarCopia),
                              msj(Msj::PreguntaRestaurar,
                                  actual ? textoResumen(*actual) : msj(Msj::ResumenIlegible),
                                  textoResumen(copia)));
}

void DialogosVentana::restaurada(const QString &copia, const QString &anteriores, quintptr padre)
{
    QString texto = msj(Msj::RestauracionHecha, QDir::toNativeSeparators(copia));
    if (!anteriores.isEmpty())
        texto
            += u"\n\n"_s + msj(Msj::DatosAnterioresGuardados, QDir::toNativeSeparators(anteriores));
    mensajes::informacion(ventana(padre), msj(Msj::MenuRestaurarCopia), texto);
}

void DialogosVentana::fallo(Trabajo trabajo, const ErrorDatos &error, quintptr padre)
{
    const bool delDia = trabajo == Trabajo::CopiaDelDia;
    const Msj titulo
        = trabajo == Trabajo::Restauracion ? Msj::MenuRestaurarCopia : Msj::MenuCopiaSeguridad;
    mensajes::aviso(
        ventana(padre), msj(titulo),
        msj(delDia ? Msj::CopiaAutomaticaFallida : Msj::NoSePudoHacer, textoFallo(error)));
}
