#include "widgets/Mensajes.h"

#include "core/Textos.h"
#include "widgets/PantallaBase.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QWidget>

#include <utility>

PunteroOcupado::PunteroOcupado()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

PunteroOcupado::~PunteroOcupado()
{
    QApplication::restoreOverrideCursor();
}

void avisarFallo(QWidget *pantalla, const QString &motivo)
{
    const QString titulo = pantalla ? pantalla->windowTitle() : msj(Msj::TituloVentana);
    mensajes::aviso(pantalla, titulo, msj(Msj::NoSePudoHacer, motivo));
}

namespace mensajes {

static Observador &observador()
{
    static Observador actual;
    return actual;
}

void observar(Observador nuevo)
{
    observador() = std::move(nuevo);
}

static QString sinAcceso(QString texto)
{
    return texto.remove(u'&');
}

struct Boton
{
    QMessageBox::StandardButton cual;
    Msj texto;
};

/// The last of the buttons is the default and Escape.
static int mostrar(QWidget *padre, QMessageBox::Icon icono, const QString &titulo,
                   const QString &texto, std::initializer_list<Boton> botones)
{
    QMessageBox caja(icono, sinAcceso(titulo), texto, QMessageBox::NoButton, padre);
    caja.setTextFormat(Qt::PlainText);
    for (const auto &boton : botones) {
        caja.addButton(boton.cual)->setText(msj(boton.texto));
        caja.setDefaultButton(boton.cual);
        caja.setEscapeButton(boton.cual);
    }
    if (observador())
        observador()(caja);
    return caja.exec();
}

void aviso(QWidget *padre, const QString &titulo, const QString &texto)
{
    mostrar(padre, QMessageBox::Warning, titulo, texto, {{QMessageBox::Ok, Msj::BotonAceptar}});
}

void informacion(QWidget *padre, const QString &titulo, const QString &texto)
{
    mostrar(padre, QMessageBox::Information, titulo, texto, {{QMessageBox::Ok, Msj::BotonAceptar}});
}

bool pregunta(QWidget *padre, const QString &titulo, const QString &texto)
{
    return mostrar(padre, QMessageBox::Question, titulo, texto,
                   {{QMessageBox::Yes, Msj::BotonSi}, {QMessageBox::No, Msj::BotonNo}})
        == QMessageBox::Yes;
}

Abrir guardado(QWidget *padre, const QString &titulo, const QString &texto)
{
    switch (mostrar(padre, QMessageBox::Information, titulo, texto,
                    {{QMessageBox::Open, Msj::BotonAbrirPdf},
                     {QMessageBox::Apply, Msj::BotonAbrirCarpeta},
                     {QMessageBox::Ok, Msj::BotonAceptar}})) {
    case QMessageBox::Open:
        return Abrir::Fichero;
    case QMessageBox::Apply:
        return Abrir::Carpeta;
    default:
        return Abrir::Nada;
    }
}

Sustituir sustituir(QWidget *padre, const QString &titulo, const QString &texto)
{
    switch (mostrar(padre, QMessageBox::Question, titulo, texto,
                    {{QMessageBox::Yes, Msj::BotonSustituir},
                     {QMessageBox::No, Msj::BotonConservar},
                     {QMessageBox::Cancel, Msj::BotonCancelar}})) {
    case QMessageBox::Yes:
        return Sustituir::Si;
    case QMessageBox::No:
        return Sustituir::No;
    default:
        return Sustituir::Cancelar;
    }
}

Respuesta preguntaDeVarias(QWidget *padre, const QString &titulo, const QString &texto)
{
    switch (mostrar(padre, QMessageBox::Question, titulo, texto,
                    {{QMessageBox::Yes, Msj::BotonSi},
                     {QMessageBox::YesToAll, Msj::BotonSiATodos},
                     {QMessageBox::NoToAll, Msj::BotonNoATodos},
                     {QMessageBox::No, Msj::BotonNo}})) {
    case QMessageBox::Yes:
        return Respuesta::Si;
    case QMessageBox::YesToAll:
        return Respuesta::SiATodos;
    case QMessageBox::NoToAll:
        return Respuesta::NoATodos;
    default:
        return Respuesta::No;
    }
}

} // namespace mensajes

Decision consultarGuardado(PantallaBase *pantalla, EstadoCarga estado, const QString &nombre)
{
    const QString titulo = pantalla->windowTitle();
    if (estado == EstadoCarga::Igual)
        return Decision::Guardar;
    if (estado == EstadoCarga::Eliminado) {
        mensajes::aviso(pantalla, titulo, msj(Msj::EliminadoEnOtraCopia, nombre));
        return Decision::Seguir;
    }
    switch (mensajes::sustituir(pantalla, titulo, msj(Msj::PreguntaCambioAjeno, nombre))) {
    case mensajes::Sustituir::Si:
        return Decision::Guardar;
    case mensajes::Sustituir::No:
        pantalla->decir(msj(Msj::ConservadoLoGuardado, nombre));
        return Decision::Conservar;
    case mensajes::Sustituir::Cancelar:
        break;
    }
    return Decision::Seguir;
}
