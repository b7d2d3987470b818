// What most sources include, directly or not. Read once a build; see TromeloTargets.cmake.
#pragma once

#include <QtQml/qqmlprivate.h>

#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <QVariant>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickWindow>
#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>
