#pragma once

#include <QObject>
#include <functional>
#include <map>
#include <memory>
#include <string>

namespace plandesk::test {

/// The test classes of this program by name.
inline std::map<std::string, std::function<std::unique_ptr<QObject>()>>& registry() {
    static std::map<std::string, std::function<std::unique_ptr<QObject>()>> classes;
    return classes;
}

template <class T>
struct Registered {
    Registered() {
        registry()[T::staticMetaObject.className()] = [] { return std::make_unique<T>(); };
    }
};

}  // namespace plandesk::test
