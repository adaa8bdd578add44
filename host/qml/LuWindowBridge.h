// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LuFrameWatch.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QObject>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <optional>

class QQmlEngine;
class QQuickItem;
class QQuickWindow;
class QWindow;

/// The windows as scripts see and use them: widgets, pages, the accessible tree, input and pictures.
///
/// All operations run on the GUI thread and return once they are done. Their error codes are those of the
/// control protocol: 2 nothing of that name, 3 disabled, 4 a value that does not fit, 6 no window.
class LuWindowBridge : public QObject
{
    Q_OBJECT

public:
    enum Error {
        NoError = 0,
        NoSuchThing = 2,
        NotWritable = 3,
        WrongValue = 4,
        NoWindow = 6,
    };

    struct Result
    {
        int code = NoError;
        QString message;
        QJsonValue value = QJsonObject();

        bool ok() const { return code == NoError; }
    };

    /// Collects the warnings of @p engine from now on.
    explicit LuWindowBridge(QQmlEngine* engine, QObject* parent = nullptr);
    ~LuWindowBridge() override;

    Result show();
    Result hide();

    /// List of {"widget","text","supported","active","enabled","shown","image","popup"} in the package's
    /// order.
    Result widgetInfos() const;

    /// As a click on the tile, with the window shown for it: the page, or the warning that stands in its
    /// place. Error 2 if it has neither.
    Result openPage(const QString& widget);
    /// Opens an advanced section, a page of the settings such as "general", the list of widgets ("arrange")
    /// or the introduction ("walkthrough"); error 2 if there is none of that name.
    Result openSection(const QString& section);
    /// Opens the popup of a widget, such as the warning of its colour mode, or one of the package by its
    /// name, such as "LuPopupFlowNotify".
    Result openPopup(const QString& widget);
    /// Closes the page of @p name, or whatever page is open for an empty name, or a popup of that type. Its
    /// end, with the event that belongs to it, has run on return.
    Result close(const QString& name = {});

    /// The tree of all visible windows, or of one widget's tile and its open page.
    Result tree(const QString& widget = {}) const;

    Result press(const QString& name, const QString& role = {}, const QString& within = {});
    Result setValue(const QString& name, const QVariant& value, const QString& role = {},
                    const QString& within = {});
    /// @param key as QKeySequence spells it, such as "Space" or "Ctrl+Right". An empty @p name means the
    /// control that has the focus.
    Result key(const QString& name, const QString& key, const QString& role = {}, const QString& within = {});
    /// What has the keyboard: {"window","role","name","item": its object name,"rect", "marked": whether it shows
    /// that, "seen": whether all of it, or as much as there is room for, can be seen}.
    Result focus() const;

    Result windows() const;
    /// @param kind "press", "move", "release" or "click" of the left button.
    Result mouse(const QString& window, const QString& kind, const QPointF& position);

    /// Writes a PNG of the main window, or of what @p name tells, which is opened for it if need be: a
    /// widget's page, an advanced section, a page of the settings such as "general", "arrange" or
    /// "walkthrough".
    Result screenshot(const QString& file, const QString& name = {}, const QString& theme = {});

    /// What is wrong with the texts and pictures of the visible windows: a list of {"window","item","text",
    /// "problem"}.
    Result problems() const;

    /// {"frames","longestMs","longestFrameMs"} since the call before; the first call begins to measure.
    Result frames();

    /// The QML warnings since the start.
    QStringList warnings() const { return m_warnings; }

private:
    struct Found
    {
        QQuickItem* item = nullptr;
        QString role;
        Result error;
    };

    /// What a picture is taken of, and how it is closed again.
    struct Picture
    {
        QQuickWindow* window = nullptr;
        QRectF part;
        std::function<void()> close;
    };

    Result openForPicture(const QString& name, Picture* picture);
    static Result failure(int code, const QString& message);
    static Result noWindow();
    static QString windowName(const QWindow* window);
    QQuickWindow* window() const;
    /// The one that has the focus of the desktop, else the main window.
    QQuickWindow* focusedWindow() const;
    QQuickItem* widgetItem(const QString& name) const;
    QQuickItem* openPagePanel() const;
    QList<QObject*> scopes(const QString& within) const;
    /// @param accepts what else the control has to be, beside its name and role.
    Found find(const QString& name, const QString& role, const QString& within,
               const std::function<bool(const QQuickItem*)>& accepts = {}) const;
    QQuickItem* popupItem(const QString& type) const;
    /// The visible window of a popup that has one of its own, or null.
    QQuickWindow* windowOfType(const QString& type) const;
    QQuickItem* sectionItem(const QString& name) const;

    LuFrameWatch m_frames;
    QStringList m_warnings;
    Qt::MouseButtons m_buttons;
};
