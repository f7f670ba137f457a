#pragma once

#include <QTranslator>

/// The few texts of Qt's own that users meet (menus of the boxes, tips of the inner frames), in the
/// session's language.
class TextosQt : public QTranslator
{
    Q_OBJECT

public:
    bool isEmpty() const override { return false; }
    QString translate(const char *contexto, const char *texto, const char *, int) const override;
};
