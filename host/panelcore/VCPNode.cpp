// SPDX-License-Identifier: Apache-2.0
#include <PanelCore/VCPNode.h>

VCPNode::VCPNode(QObject* parent, int code, int shCode, const QString& type, const QString& name,
                 const QString& category)
    : QObject(parent), m_code(code), m_shCode(shCode), m_type(type), m_name(name), m_category(category)
{
}

VCPNode::~VCPNode() = default;

void VCPNode::loadExtraValues(const QXmlStreamAttributes&) {}
