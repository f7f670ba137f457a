#include "widgets/Mensajes.h"

#include "core/Textos.h"

#include <QAbstractButton>
#include <QMessageBox>

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

static int mostrar(QWidget *padre, QMessageBox::Icon icono, const QString &titulo,
                   const QString &texto, QMessageBox::StandardButtons botones)
{
    QMessageBox caja(icono, sinAcceso(titulo), texto, botones, padre);
    caja.setTextFormat(Qt::PlainText);
    if (auto *ok = caja.button(QMessageBox::Ok))
        ok->setText(msj(Msj::BotonAceptar));
    if (auto *si = caja.button(QMessageBox::Yes))
        si->setText(msj(Msj::BotonSi));
    if (auto *no = caja.button(QMessageBox::No)) {
        no->setText(msj(Msj::BotonNo));
        caja.setDefaultButton(QMessageBox::No);
        caja.setEscapeButton(QMessageBox::No);
    }
    if (observador())
        observador()(caja);
    return caja.exec();
}

void aviso(QWidget *padre, const QString &titulo, const QString &texto)
{
    mostrar(padre, QMessageBox::Warning, titulo, texto, QMessageBox::Ok);
}

void informacion(QWidget *padre, const QString &titulo, const QString &texto)
{
    mostrar(padre, QMessageBox::Information, titulo, texto, QMessageBox::Ok);
}

bool pregunta(QWidget *padre, const QString &titulo, const QString &texto)
{
    return mostrar(padre, QMessageBox::Question, titulo, texto, QMessageBox::Yes | QMessageBox::No)
        == QMessageBox::Yes;
}

} // namespace mensajes
