// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <PanelCore/PanelCoreGlobal.h>

#include <QObject>
#include <QString>
#include <QXmlStreamAttributes>

/// One entry of a model's list of values of a VCP code, such as one picture mode on 0xDC.
///
/// A node is filled once, when the model reads its schema, and constant afterwards: any thread may read it.
class PANELCORE_EXPORT VCPNode : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString displayName READ displayName CONSTANT)
    Q_PROPERTY(QString category READ category CONSTANT)
    Q_PROPERTY(int code READ code CONSTANT)

public:
    /// What a node says of a function.
    enum FunctionEnable : int {
        FunctionOff = 0,       ///< Written as "off".
        FunctionOn = 1,        ///< Written as "on".
        FunctionUndefined = 2, ///< Not written.
    };
    Q_ENUM(FunctionEnable)

    VCPNode(QObject* parent, int code, int shCode, const QString& type, const QString& name,
            const QString& category);
    ~VCPNode() override;

    /// Reads what the schema entry holds besides the constructor's arguments. Called once, after
    /// construction.
    virtual void loadExtraValues(const QXmlStreamAttributes& attributes);

    /// Value of the node on its VCP code, 0 to 255.
    int code() const { return m_code; }
    /// Second value of the node; 0 in every schema so far.
    int shCode() const { return m_shCode; }
    QString type() const { return m_type; }
    QString category() const { return m_category; }
    /// The name that settings, flows and shortcuts refer to and that panels translate.
    QString displayName() const { return m_name; }

private:
    const int m_code;
    const int m_shCode;
    const QString m_type;
    const QString m_name;
    const QString m_category;
};
