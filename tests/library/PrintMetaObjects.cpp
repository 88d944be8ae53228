/*
 * Prints what meta-objects of a library tell: classes, properties, methods, enumerations.
 *
 * usage: platform_print_metaobjects LIBRARY SYMBOL...
 *
 * Each SYMBOL is the mangled name of a class's staticMetaObject. They are sorted by class.
 */
#include <QMap>
#include <QMetaEnum>
#include <QMetaMethod>
#include <QMetaObject>
#include <QMetaProperty>
#include <QTextStream>

#include <dlfcn.h>

namespace {

void printProperty(QTextStream& out, const QMetaProperty& property)
{
    out << "    property " << property.typeName() << ' ' << property.name();
    const QPair<const char*, bool> marks[] = {
        {"READ", property.isReadable()},
        {"WRITE", property.isWritable()},
        {"RESET", property.isResettable()},
        {"not DESIGNABLE", !property.isDesignable()},
        {"not SCRIPTABLE", !property.isScriptable()},
        {"not STORED", !property.isStored()},
        {"USER", property.isUser()},
        {"CONSTANT", property.isConstant()},
        {"FINAL", property.isFinal()},
        {"REQUIRED", property.isRequired()},
        {"enumeration", property.isEnumType() && !property.isFlagType()},
        {"flags", property.isFlagType()},
    };
    for (const auto& mark : marks) {
        if (mark.second)
            out << ' ' << mark.first;
    }
    if (property.hasNotifySignal())
        out << " NOTIFY " << property.notifySignal().name();
    out << '\n';
}

const char* kindOf(const QMetaMethod& method)
{
    switch (method.methodType()) {
    case QMetaMethod::Signal:
        return "signal";
    case QMetaMethod::Slot:
        return "slot";
    case QMetaMethod::Constructor:
        return "constructor";
    case QMetaMethod::Method:
        break;
    }
    return "method";
}

const char* accessOf(const QMetaMethod& method)
{
    switch (method.access()) {
    case QMetaMethod::Private:
        return "private";
    case QMetaMethod::Protected:
        return "protected";
    case QMetaMethod::Public:
        break;
    }
    return "public";
}

void printMethod(QTextStream& out, const QMetaMethod& method)
{
    out << "    " << kindOf(method) << ' ' << accessOf(method) << ' ' << method.typeName() << ' '
        << method.methodSignature();
    if (method.parameterCount() > 0)
        out << " named (" << method.parameterNames().join(", ") << ')';
    if (method.attributes() & QMetaMethod::Cloned)
        out << " by default arguments";
    out << '\n';
}

void printEnumeration(QTextStream& out, const QMetaEnum& enumeration)
{
    out << "    " << (enumeration.isFlag() ? "flags " : "enumeration ")
        << (enumeration.isScoped() ? "class " : "") << enumeration.enumName();
    if (qstrcmp(enumeration.name(), enumeration.enumName()) != 0)
        out << " as " << enumeration.name();
    out << '\n';
    for (int i = 0; i < enumeration.keyCount(); ++i)
        out << "        " << enumeration.key(i) << " = " << enumeration.value(i) << '\n';
}

void printMetaObject(QTextStream& out, const QMetaObject& object)
{
    out << object.className();
    if (object.superClass())
        out << " : " << object.superClass()->className();
    out << '\n';
    for (int i = object.classInfoOffset(); i < object.classInfoCount(); ++i)
        out << "    info " << object.classInfo(i).name() << " = " << object.classInfo(i).value()
            << '\n';
    for (int i = object.enumeratorOffset(); i < object.enumeratorCount(); ++i)
        printEnumeration(out, object.enumerator(i));
    for (int i = object.propertyOffset(); i < object.propertyCount(); ++i)
        printProperty(out, object.property(i));
    for (int i = 0; i < object.constructorCount(); ++i)
        printMethod(out, object.constructor(i));
    for (int i = object.methodOffset(); i < object.methodCount(); ++i)
        printMethod(out, object.method(i));
    out << '\n';
}

} // namespace

int main(int argc, char** argv)
{
    QTextStream out(stdout);
    QTextStream errors(stderr);
    void* library = argc > 1 ? dlopen(argv[1], RTLD_NOW) : nullptr;
    if (!library) {
        errors << (argc > 1 ? dlerror() : "no library given") << Qt::endl;
        return EXIT_FAILURE;
    }
    QMap<QByteArray, const QMetaObject*> objects;
    for (int i = 2; i < argc; ++i) {
        const auto* object = static_cast<const QMetaObject*>(dlsym(library, argv[i]));
        if (!object) {
            errors << dlerror() << Qt::endl;
            return EXIT_FAILURE;
        }
        objects.insert(object->className(), object);
    }
    for (const QMetaObject* object : qAsConst(objects))
        printMetaObject(out, *object);
    return EXIT_SUCCESS;
}
