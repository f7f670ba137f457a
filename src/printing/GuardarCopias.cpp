#include "printing/GuardarCopias.h"

#include "core/Textos.h"
#include "printing/DocumentoPdf.h"
#include "printing/TrabajoImpresion.h"
#include "widgets/Ficheros.h"
#include "widgets/Mensajes.h"
#include "widgets/Procedimiento.h"

#include <QDir>
#include <QFileInfo>
#include <QWidget>

using namespace Qt::StringLiterals;

/// The file dialogue can only ask about the name that the user chose.
static bool aceptaSobrescribir(QWidget *pantalla, const QStringList &rutas)
{
    const bool existe
        = std::ranges::any_of(rutas, [](const QString &ruta) { return QFileInfo::exists(ruta); });
    return !existe
        || mensajes::pregunta(pantalla, msj(Msj::TituloConfirmacion),
                              msj(Msj::PreguntaSobreescribir));
}

void guardarCopias(QWidget *pantalla, TrabajoImpresion &trabajo, bool unoSolo)
{
    const QStringList copias = trabajo.copias();
    const QString titulo = msj(Msj::GuardarPdf);
    const QString propuesta = QDir::home().filePath(trabajo.nombreFichero(copias));
    const QString elegida
        = ficheros::guardar(pantalla, titulo, propuesta, msj(Msj::FiltroPdf), false);
    if (elegida.isEmpty())
        return;
    const QStringList rutas = rutasPdf(elegida, copias, unoSolo);
    if (!aceptaSobrescribir(pantalla, rutas))
        return;

    QString motivo;
    {
        const PunteroOcupado puntero;
        motivo = guardarPdfs(trabajo, rutas);
    }
    if (motivo.isEmpty())
        mensajes::informacion(pantalla, titulo, msj(Msj::PdfGuardado, rutas.join(u"\n"_s)));
    else
        mensajes::aviso(pantalla, titulo, motivo);
}
