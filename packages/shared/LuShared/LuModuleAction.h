// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuActionInterface.h>

#include <QPointer>
#include <QVariantMap>

class LuModelModuleInterface;

/// An action that sets stored properties of one module.
class LUSHARED_EXPORT LuModuleAction : public LuActionInterface
{
    Q_OBJECT

public:
    LuModuleAction(ActionTitle title, LuModelModuleInterface* module, const QVariantMap& properties,
                   QObject* parent = nullptr);
    ~LuModuleAction() override;

    LuModelModuleInterface* module() const;
    QVariantMap properties() const { return m_properties; }

    /// Value that the user chose for a property of the module; invalid if there is none.
    QVariant actionProperty(const QString& name) const { return m_properties.value(name); }

    /// Writes the stored properties to the module, on the caller's thread. The module sees the change as
    /// another function's. False if the module is gone or refused a property.
    virtual bool trigger();

private:
    const QPointer<LuModelModuleInterface> m_module;
    const QVariantMap m_properties;
};
