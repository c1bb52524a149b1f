#pragma once

#include <QAccessible>

class QWidget;

namespace qismora {

/// Gives a widget another role for screen readers than its class has: a picture, a notification.
void SetAccessibleRole(QWidget* widget, QAccessible::Role role);
/// Makes a screen reader announce a notification: it does so when one appears.
void Announce(QWidget* notification);

}  // namespace qismora
