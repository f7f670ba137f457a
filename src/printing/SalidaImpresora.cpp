#include "printing/SalidaImpresora.h"

#include "core/Textos.h"
#include "printing/TrabajoImpresion.h"

#include <QAction>
#include <QCoreApplication>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>

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
    return m_impresora->printerName();
}

void SalidaImpresora::preparar(const TrabajoImpresion &trabajo)
{
    // a printer chosen meanwhile brings its own paper
    prepararPagina(*m_impresora);
    m_impresora->setDocName(trabajo.titulo());
    m_impresora->setCreator(AutorDocumento.toString());
}

void SalidaImpresora::opciones(QWidget *padre)
{
    QPrintDialog dialogo(m_impresora.get(), padre);
    dialogo.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialogo.exec();
}

/// Printing from the preview would make one document of all the copies, and the forms have one page
/// shape only. The dialogue's actions can only be told apart by their texts.
static void ocultarOrdenesAjenas(QPrintPreviewDialog &dialogo)
{
    for (const char *texto : {"Print", "Page setup", "Portrait", "Landscape"})
        for (QAction *accion : dialogo.findChildren<QAction *>())
            if (accion->text() == QCoreApplication::translate("QPrintPreviewDialog", texto))
                accion->setVisible(false);
}

void SalidaImpresora::vistaPrevia(QWidget *padre, TrabajoImpresion &trabajo)
{
    preparar(trabajo);
    QPrintPreviewDialog dialogo(m_impresora.get(), padre);
    dialogo.setObjectName(u"vistaPrevia"_s);
    dialogo.setWindowTitle(msj(Msj::VistaPrevia));
    ocultarOrdenesAjenas(dialogo);
    QObject::connect(&dialogo, &QPrintPreviewDialog::paintRequested, &dialogo,
                     [&](QPrinter *impresora) { trabajo.paginas(*impresora, trabajo.copias()); });
    dialogo.exec();
}

bool SalidaImpresora::imprimir(TrabajoImpresion &trabajo)
{
    return trabajo.imprimir(*m_impresora, [&] { preparar(trabajo); })
        && m_impresora->printerState() != QPrinter::Error;
}
