#include "printing/SalidaImpresora.h"

#include "core/Textos.h"
#include "printing/DocumentoPdf.h"
#include "printing/Listado.h"
#include "printing/TrabajoImpresion.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QScreen>

using namespace Qt::StringLiterals;

SalidaImpresora::SalidaImpresora()
    : m_impresora(std::make_unique<QPrinter>(QPrinter::HighResolution))
{
    prepararPagina(*m_impresora);
}

SalidaImpresora::~SalidaImpresora() = default;

bool SalidaImpresora::hayImpresoras()
{
    return !QPrinterInfo::availablePrinterNames().isEmpty();
}

bool SalidaImpresora::elegir(const QString &nombre)
{
    if (!QPrinterInfo::availablePrinterNames().contains(nombre))
        return false;
    m_impresora->setPrinterName(nombre);
    return true;
}

QString SalidaImpresora::nombre() const
{
    if (!fichero().isEmpty())
        return QDir::toNativeSeparators(fichero());
    return hayImpresoras() ? m_impresora->printerName() : msj(Msj::NingunaImpresora);
}

QString SalidaImpresora::fichero() const
{
    return m_impresora->outputFileName();
}

QStringList SalidaImpresora::ficheros(const QStringList &copias) const
{
    return fichero().isEmpty() ? QStringList() : rutasPdf(fichero(), copias, false);
}

void SalidaImpresora::preparar(const QString &titulo)
{
    // a printer chosen meanwhile brings its own paper
    prepararPagina(*m_impresora);
    m_impresora->setDocName(titulo);
    m_impresora->setCreator(AutorDocumento.toString());
}

void SalidaImpresora::opciones(QWidget *padre)
{
    QPrintDialog dialogo(m_impresora.get(), padre);
    dialogo.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialogo.exec();
}

/// The action with this text of Qt's, which has no other name.
static QAction *accion(const QPrintPreviewDialog &dialogo, const char *texto)
{
    const QString traducido = QCoreApplication::translate("QPrintPreviewDialog", texto);
    for (QAction *accion : dialogo.findChildren<QAction *>())
        if (accion->text() == traducido)
            return accion;
    return nullptr;
}

/// Printing the copies from the preview would make one document of them all, and the pages have one
/// shape only. A page is read at the width of a window that takes most of the screen.
static void prepararVistaPrevia(QPrintPreviewDialog &dialogo, bool imprimible)
{
    for (const char *ajena : {"Print", "Page setup", "Portrait", "Landscape"})
        if (QAction *orden = accion(dialogo, ajena))
            orden->setVisible(imprimible && orden == accion(dialogo, "Print"));
    const QRect libre = dialogo.screen()->availableGeometry();
    dialogo.resize(libre.size() * 0.9);
    dialogo.move(libre.center() - dialogo.rect().center());
    if (QAction *ancho = accion(dialogo, "Fit width"))
        ancho->trigger();
}

void SalidaImpresora::mostrarVistaPrevia(QWidget *padre,
                                         const std::function<void(QPrinter &)> &dibujar,
                                         bool imprimible)
{
    QPrintPreviewDialog dialogo(m_impresora.get(), padre);
    dialogo.setObjectName(u"vistaPrevia"_s);
    dialogo.setWindowTitle(msj(Msj::VistaPrevia));
    prepararVistaPrevia(dialogo, imprimible);
    QObject::connect(&dialogo, &QPrintPreviewDialog::paintRequested, &dialogo,
                     [&](QPrinter *impresora) { dibujar(*impresora); });
    dialogo.exec();
}

void SalidaImpresora::vistaPrevia(QWidget *padre, TrabajoImpresion &trabajo)
{
    preparar(trabajo.titulo());
    mostrarVistaPrevia(
        padre, [&](QPrinter &impresora) { trabajo.paginas(impresora, trabajo.copias()); }, false);
}

void SalidaImpresora::vistaPrevia(QWidget *padre, const impreso::Listado &listado)
{
    preparar(listado.titulo);
    mostrarVistaPrevia(
        padre, [&](QPrinter &impresora) { listado.dibujar(impresora); }, true);
}

bool SalidaImpresora::imprimir(TrabajoImpresion &trabajo)
{
    return trabajo.imprimir(*m_impresora, [&] { preparar(trabajo.titulo()); })
        && m_impresora->printerState() != QPrinter::Error;
}
