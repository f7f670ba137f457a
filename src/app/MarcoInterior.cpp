#include "app/MarcoInterior.h"

#include "widgets/Iconos.h"
#include "widgets/PantallaBase.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMenu>

using namespace Qt::StringLiterals;

MarcoInterior::MarcoInterior(PantallaBase *pantalla)
{
    pantalla->envolver();
    setWidget(pantalla);
    setObjectName(u"marco_"_s + pantalla->objectName());
    setAttribute(Qt::WA_DeleteOnClose);
    if (pantalla->windowIcon().isNull() || !pantalla->testAttribute(Qt::WA_SetWindowIcon))
        setWindowIcon(icono(Icono::Programa));
    traducirMenu();
}

void MarcoInterior::mostrarEn(const QRect &libre, bool amplia)
{
    constexpr QSize maximo(1040, 660);
    const QSize margen(40, 30);
    QSize tamano = sizeHint();
    if (amplia)
        tamano = tamano.expandedTo((libre.size() - margen).boundedTo(maximo));
    if (tamano.width() > libre.width() || tamano.height() > libre.height()) {
        showMaximized();
        return;
    }
    resize(tamano);
    const QSize resto = (libre.size() - tamano) / 2;
    move(libre.topLeft() + QPoint(resto.width(), resto.height()));
    show();
}

void MarcoInterior::mostrarEnLugarDe(const QMdiSubWindow &otro)
{
    if (otro.isMaximized()) {
        showMaximized();
        return;
    }
    setGeometry(otro.geometry());
    show();
}

void MarcoInterior::changeEvent(QEvent *evento)
{
    QMdiSubWindow::changeEvent(evento);
    if (evento->type() == QEvent::LanguageChange)
        traducirMenu();
}

void MarcoInterior::traducirMenu()
{
    // Qt gives the entries no names; their order is fixed
    static constexpr const char *entradas[]
        = {"&Restore", "&Move", "&Size", "Mi&nimize", "Ma&ximize", "Stay on &Top", "&Close"};
    size_t puesto = 0;
    for (auto *accion : systemMenu()->actions()) {
        if (!accion->isSeparator() && puesto < std::size(entradas))
            accion->setText(QCoreApplication::translate("QMdiSubWindow", entradas[puesto++]));
    }
}
