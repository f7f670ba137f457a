#include "printing/GuardarCopias.h"

#include "core/Textos.h"
#include "printing/DocumentoPdf.h"
#include "printing/TrabajoImpresion.h"
#include "widgets/Ficheros.h"
#include "widgets/Mensajes.h"
#include "widgets/Navegador.h"

#include <QDir>
#include <QFileInfo>
#include <QWidget>

using namespace Qt::StringLiterals;

bool aceptaSobrescribir(QWidget *pantalla, const QStringList &rutas)
{
    const bool existe
        = std::ranges::any_of(rutas, [](const QString &ruta) { return QFileInfo::exists(ruta); });
    return !existe
        || mensajes::pregunta(pantalla, msj(Msj::TituloConfirmacion),
                              msj(Msj::PreguntaSobreescribir));
}

/// Where the last PDF of the session went.
static QString &ultima()
{
    static QString carpeta = QDir::homePath();
    return carpeta;
}

QString ultimaCarpeta()
{
    return QDir(ultima()).exists() ? ultima() : QDir::homePath();
}

void ultimaCarpeta(const QString &carpeta)
{
    ultima() = carpeta;
}

static void abrir(QWidget *pantalla, const QString &ruta)
{
    if (!navegador::abrirFichero(ruta))
        mensajes::aviso(pantalla, msj(Msj::GuardarPdf),
                        msj(Msj::PdfNoSeAbre, QDir::toNativeSeparators(ruta)));
}

/// Tells what was saved, and opens it or its folder when the user wishes so.
static void ofrecer(QWidget *pantalla, const QStringList &rutas)
{
    QStringList legibles;
    for (const QString &ruta : rutas)
        legibles += QDir::toNativeSeparators(ruta);
    switch (mensajes::guardado(pantalla, msj(Msj::GuardarPdf),
                               msj(Msj::PdfGuardado, legibles.join(u"\n"_s)))) {
    case mensajes::Abrir::Fichero:
        for (const QString &ruta : rutas)
            abrir(pantalla, ruta);
        break;
    case mensajes::Abrir::Carpeta:
        abrir(pantalla, QFileInfo(rutas.first()).absolutePath());
        break;
    case mensajes::Abrir::Nada:
        break;
    }
}

bool guardarCopias(QWidget *pantalla, TrabajoImpresion &trabajo, bool unoSolo)
{
    const QStringList copias = trabajo.copias();
    const QString propuesta = QDir(ultimaCarpeta()).filePath(trabajo.nombreFichero(copias));
    const QString elegida
        = ficheros::guardar(pantalla, msj(Msj::GuardarPdf), propuesta, msj(Msj::FiltroPdf), false);
    return !elegida.isEmpty()
        && guardarCopiasEn(pantalla, trabajo, rutasPdf(elegida, copias, unoSolo));
}

bool guardarCopiasEn(QWidget *pantalla, TrabajoImpresion &trabajo, const QStringList &rutas)
{
    QString motivo = motivoRutasRechazadas(rutas);
    if (motivo.isEmpty()) {
        if (!aceptaSobrescribir(pantalla, rutas))
            return false;
        const PunteroOcupado puntero;
        motivo = guardarPdfs(trabajo, rutas);
    }
    if (!motivo.isEmpty()) {
        mensajes::aviso(pantalla, msj(Msj::GuardarPdf), motivo);
        return false;
    }
    ultimaCarpeta(QFileInfo(rutas.first()).absolutePath());
    ofrecer(pantalla, rutas);
    return true;
}
