#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

/// What a person sees on a screen, row by row from left to right: labels as they are, boxes as
/// "[name=text]", those that cannot be typed in as "(name=text)", buttons as "<text>". Disabled
/// ones have a "-" in front.
inline QStringList retrato(const QWidget &pantalla)
{
    struct Parte
    {
        QPoint centro;
        int izquierda;
        QString texto;
    };
    QList<Parte> partes;
    for (const auto *control : pantalla.findChildren<QWidget *>()) {
        QString texto;
        if (const auto *etiqueta = qobject_cast<const QLabel *>(control))
            texto = etiqueta->text();
        else if (const auto *caja = qobject_cast<const QLineEdit *>(control))
            texto = (caja->isReadOnly() ? u"(%1=%2)"_s : u"[%1=%2]"_s)
                        .arg(caja->objectName(), caja->text());
        else if (const auto *boton = qobject_cast<const QAbstractButton *>(control))
            texto = boton->text().isEmpty() ? QString()
                                            : u"<%1>"_s.arg(boton->text().remove(u'&').trimmed());
        if (texto.isEmpty() || !control->isVisibleTo(&pantalla))
            continue;
        if (!control->isEnabled())
            texto.prepend(u'-');
        const QPoint lugar = control->mapTo(&pantalla, QPoint());
        partes.append({control->mapTo(&pantalla, control->rect().center()), lugar.x(), texto});
    }
    std::ranges::sort(partes, {}, [](const Parte &p) { return p.centro.y(); });
    QStringList filas;
    for (auto desde = partes.cbegin(); desde != partes.cend();) {
        const int y = desde->centro.y();
        const auto hasta = std::find_if(desde, partes.cend(),
                                        [y](const Parte &p) { return p.centro.y() > y + 6; });
        QList<Parte> fila(desde, hasta);
        std::ranges::sort(fila, {}, &Parte::izquierda);
        QStringList textos;
        for (const Parte &parte : fila)
            textos += parte.texto;
        filas += textos.join(u' ');
        desde = hasta;
    }
    return filas;
}

/// Compares line by line, so that a difference is short to read.
inline void compararRetrato(const QWidget &pantalla, const QString &esperado)
{
    const QStringList filas = retrato(pantalla);
    const QStringList lineas = esperado.split(u'\n');
    for (qsizetype i = 0; i < std::min(filas.size(), lineas.size()); ++i)
        QCOMPARE(filas[i], lineas[i]);
    QCOMPARE(filas.size(), lineas.size());
}

/// The names of the controls that Tab leads to, from the one with the focus on, once around.
inline QString vueltaConTab(QWidget &pantalla)
{
    QStringList nombres;
    const QWidget *primero = pantalla.focusWidget();
    do {
        nombres += pantalla.focusWidget()->objectName();
        QTest::keyClick(pantalla.focusWidget(), Qt::Key_Tab);
    } while (pantalla.focusWidget() != primero && nombres.size() < 100);
    return nombres.join(u' ');
}
