#include "app/Recientes.h"

#include "app/Menus.h"

#include <QAction>
#include <QMenu>

using namespace Qt::StringLiterals;

static constexpr int Cuantos = 4;

static QList<DeclaranteReciente> ultimosDeclarantes()
{
    try {
        return cDecLista::UltimosDeclarantes();
    } catch (const std::exception &) {
        // a database that cannot be read has been told at start-up or by the action that met it
        return {};
    }
}

Recientes::Recientes(QMenu *menu)
    : QObject(menu)
{
    menu->addSeparator();
    for (int i = 1; i <= Cuantos; ++i) {
        auto *entrada = menu->addAction(icono(Icono::Declarante), QString());
        entrada->setObjectName(u"d%1"_s.arg(i));
        entrada->setVisible(false);
        connect(entrada, &QAction::triggered, this, [this, entrada] {
            const auto &declarante = m_declarantes.at(m_entradas.indexOf(entrada));
            Q_EMIT elegido(declarante.csco, declarante.dni, declarante.nombre);
        });
        m_entradas.append(entrada);
    }
}

void Recientes::cargar()
{
    m_declarantes = ultimosDeclarantes();
    for (qsizetype i = 0; i < m_entradas.size(); ++i) {
        auto *entrada = m_entradas.at(i);
        const bool hay = i < m_declarantes.size();
        entrada->setVisible(hay);
        QString texto;
        if (hay)
            texto = m_declarantes.at(i).dni + u" - "_s + m_declarantes.at(i).nombre;
        entrada->setText(texto.replace(u'&', u"&&"_s));
    }
}

void Recientes::aplicar(const QString &motivo)
{
    for (auto *entrada : std::as_const(m_entradas))
        habilitar(entrada, motivo, msj(Msj::PistaMenuReciente));
}
