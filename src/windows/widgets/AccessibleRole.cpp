#include "windows/widgets/AccessibleRole.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace qismora {

namespace {

constexpr const char* property = "accessibleRole";

QAccessibleInterface* InterfaceWithRole(const QString&, QObject* object) {
  auto* widget = qobject_cast<QWidget*>(object);
  const QVariant role = object->property(property);
  if (widget == nullptr || !role.isValid()) return nullptr;
  return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
}

}  // namespace

void SetAccessibleRole(QWidget* widget, QAccessible::Role role) {
  QAccessible::installFactory(InterfaceWithRole);  // once more changes nothing
  widget->setProperty(property, static_cast<int>(role));
}

void Announce(QWidget* notification) {
  QAccessibleEvent appeared(notification, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&appeared);
}

}  // namespace qismora
