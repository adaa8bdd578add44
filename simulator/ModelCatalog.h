// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ModelDescription.h"

#include <QStringList>

#include <memory>

namespace sim {

/// The models that the simulator knows, read from the library's resources or from a folder.
class ModelCatalog
{
public:
    /// The models that the library carries. Thread safe.
    static const ModelCatalog& instance();

    /// Reads every "*.json" file of @p folder; files that only serve others ("abstract") are no models.
    explicit ModelCatalog(const QString& folder);

    /// Names in alphabetical order, "builtin" included, the fall-back for unknown names not.
    QStringList names() const;
    bool contains(const QString& name) const;

    /// The description of a model; for a name that is not known a monitor of that name with the basic VCP
    /// codes. Never null.
    std::shared_ptr<const ModelDescription> lookup(const QString& name) const;

    /// What was wrong with the files, one sentence each with the file's name in front; empty if all is well.
    QStringList errors() const { return m_errors; }

private:
    QMap<QString, std::shared_ptr<const ModelDescription>> m_models;
    std::shared_ptr<const ModelDescription> m_generic;
    QStringList m_errors;
};

} // namespace sim
