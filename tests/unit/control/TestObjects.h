// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAudioDevice>
#include <QColor>
#include <QDateTime>
#include <QJsonObject>
#include <QKeySequence>
#include <QObject>
#include <QRect>
#include <QSize>
#include <QUrl>
#include <QVariant>

/// A colour mode: what counts is the class's name and its display name.
class VCPNode : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString displayName READ displayName CONSTANT)
    Q_PROPERTY(int code READ code CONSTANT)

public:
    VCPNode(const QString& name, int code, QObject* parent) : QObject(parent), m_name(name), m_code(code) {}
    QString displayName() const { return m_name; }
    int code() const { return m_code; }

private:
    const QString m_name;
    const int m_code;
};

class ModeNode : public VCPNode
{
    Q_OBJECT
    Q_PROPERTY(int contrastEnable READ contrastEnable CONSTANT)

public:
    using VCPNode::VCPNode;
    int contrastEnable() const { return 1; }
};

class Flow : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString id READ id CONSTANT)
    Q_PROPERTY(QString name MEMBER m_name NOTIFY nameChanged)

public:
    Flow(const QString& id, const QString& name, QObject* parent) : QObject(parent), m_name(name), m_id(id) {}
    QString id() const { return m_id; }
    QString m_name;

Q_SIGNALS:
    void nameChanged();

private:
    const QString m_id;
};

class Gadget
{
    Q_GADGET
    Q_PROPERTY(int depth MEMBER depth)
    Q_PROPERTY(QString label MEMBER label)

public:
    int depth = 3;
    QString label = QStringLiteral("g");
    bool operator==(const Gadget&) const = default;
};

/// One property of each type that travels.
class Base : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool syncEnable MEMBER syncEnable NOTIFY syncEnableChanged)

public:
    using QObject::QObject;
    bool syncEnable = false;
    Q_INVOKABLE int baseOperation() { return 1; }

Q_SIGNALS:
    void syncEnableChanged();
};

class Module : public Base
{
    Q_OBJECT
    Q_PROPERTY(int level READ level WRITE setLevel NOTIFY levelChanged)
    Q_PROPERTY(bool state MEMBER state NOTIFY stateChanged)
    Q_PROPERTY(double ratio MEMBER ratio)
    Q_PROPERTY(uint count MEMBER count)
    Q_PROPERTY(qint64 wide MEMBER wide)
    Q_PROPERTY(quint64 widest MEMBER widest)
    Q_PROPERTY(quint8 byte MEMBER byte)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(Mode mode MEMBER mode)
    Q_PROPERTY(Small small MEMBER small)
    Q_PROPERTY(Options options READ readOptions WRITE writeOptions)
    Q_PROPERTY(QSize size MEMBER size)
    Q_PROPERTY(QRect rect MEMBER rect)
    Q_PROPERTY(QRectF rectF MEMBER rectF)
    Q_PROPERTY(QColor color MEMBER color)
    Q_PROPERTY(QUrl url MEMBER url)
    Q_PROPERTY(QTime time MEMBER time)
    Q_PROPERTY(QDateTime dateTime MEMBER dateTime)
    Q_PROPERTY(QAudioDevice audio MEMBER audio)
    Q_PROPERTY(QList<QAudioDevice> audios MEMBER audios)
    Q_PROPERTY(QStringList names MEMBER names)
    Q_PROPERTY(QList<int> numbers MEMBER numbers)
    Q_PROPERTY(QList<QSize> sizes MEMBER sizes)
    Q_PROPERTY(QVariantList variants MEMBER variants)
    Q_PROPERTY(QVariantMap map MEMBER map)
    Q_PROPERTY(QVariant any MEMBER any)
    Q_PROPERTY(QJsonObject json MEMBER json)
    Q_PROPERTY(Gadget gadget MEMBER gadget)
    Q_PROPERTY(Flow* active MEMBER active NOTIFY activeChanged)
    Q_PROPERTY(QList<Flow*> flows MEMBER flows)
    Q_PROPERTY(QObject* nothing READ nothing CONSTANT)
    Q_PROPERTY(int fixed READ fixed CONSTANT)
    Q_PROPERTY(Module* self READ self CONSTANT)

public:
    /// With a type of its own any number is a value of it, as the protocol takes any.
    enum Mode : int {
        Off = 0,
        On = 1,
        Auto = 7,
    };
    Q_ENUM(Mode)
    enum class Small : quint8 {
        One = 1,
        Two = 2,
    };
    Q_ENUM(Small)
    enum Option {
        A = 1,
        B = 2,
        C = 4,
    };
    Q_DECLARE_FLAGS(Options, Option)
    Q_FLAG(Options)

    using Base::Base;

    int level() const { return m_level; }
    void setLevel(int value)
    {
        m_level = value;
        Q_EMIT levelChanged();
    }
    QObject* nothing() const { return nullptr; }
    int fixed() const { return 42; }
    Module* self() { return this; }

    Q_INVOKABLE int add(int a, int b) { return a + b; }
    Q_INVOKABLE QString join(const QString& a) { return a; }
    Q_INVOKABLE QString join(const QString& a, const QString& b) { return a + b; }
    Q_INVOKABLE QString either(int) { return QStringLiteral("number"); }
    Q_INVOKABLE QString either(const QString&) { return QStringLiteral("text"); }
    Q_INVOKABLE int withDefault(int a, int b = 10) { return a + b; }
    Q_INVOKABLE void setMode(Module::Mode m) { mode = m; }
    Q_INVOKABLE QString nameOf(Flow* flow) { return flow ? flow->m_name : QStringLiteral("none"); }
    Q_INVOKABLE int codeOf(VCPNode* node) { return node ? node->code() : -1; }
    Q_INVOKABLE QVariant echo(const QVariant& value) { return value; }
    Q_INVOKABLE void fireHappened(int a, const QString& b) { Q_EMIT happened(a, b); }
    Options readOptions() const { return options; }
    void writeOptions(Options value) { options = value; }
    void notInvokable() {}

    bool state = false;
    double ratio = 0;
    uint count = 0;
    qint64 wide = 0;
    quint64 widest = 0;
    quint8 byte = 0;
    QString text;
    Mode mode = Off;
    Small small = Small::One;
    Options options;
    QSize size;
    QRect rect;
    QRectF rectF;
    QColor color;
    QUrl url;
    QTime time;
    QDateTime dateTime;
    QAudioDevice audio;
    QList<QAudioDevice> audios;
    QStringList names;
    QList<int> numbers;
    QList<QSize> sizes;
    QVariantList variants;
    QVariantMap map;
    QVariant any;
    QJsonObject json;
    Gadget gadget;
    Flow* active = nullptr;
    QList<Flow*> flows;

public Q_SLOTS:
    void slotOperation() {}

Q_SIGNALS:
    void levelChanged();
    void stateChanged();
    void activeChanged();
    void happened(int number, const QString& text);

private Q_SLOTS:
    void secret() {}

private:
    int m_level = 0;
};

/// The root of the paths.
class Model : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString name MEMBER name NOTIFY nameChanged)
    Q_PROPERTY(VCPNode* colorMode MEMBER colorMode NOTIFY colorModeChanged)
    Q_PROPERTY(QList<ModeNode*> colorModeList MEMBER colorModeList CONSTANT)
    Q_PROPERTY(Module* module READ module CONSTANT)

public:
    explicit Model(QObject* parent = nullptr) : QObject(parent), m_module(new Module(this))
    {
        colorModeList = {new ModeNode(QStringLiteral("Standard"), 1, this),
                         new ModeNode(QStringLiteral("Cinema"), 2, this)};
        colorMode = colorModeList.first();
        m_module->flows = {new Flow(QStringLiteral("id-1"), QStringLiteral("Work"), this),
                           new Flow(QStringLiteral("id-2"), QStringLiteral("Play"), this)};
        empty = new Flow(QString(), QString(), this);
        m_module->active = empty;
    }
    Module* module() const { return m_module; }
    Q_INVOKABLE void touch() { ++touched; }

    QString name = QStringLiteral("model");
    VCPNode* colorMode;
    QList<ModeNode*> colorModeList;
    Flow* empty;
    int touched = 0;

Q_SIGNALS:
    void nameChanged();
    void colorModeChanged();

private:
    Module* const m_module;
};
