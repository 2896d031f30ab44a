#pragma once

#include <deque>
#include <utility>

// What the members of a form are made of, so that a form can be assigned to another of its class as a whole and the
// compiler copies whatever it holds, members to come included.

namespace plandesk {

/// A member that belongs to its object's place and not to what the object holds: its name, what it refers to, what it
/// does. When one object is assigned to another, the target keeps its own. It is set and used like a bare T.
template <class T>
class Fixed : public T {
public:
    using T::T;
    using T::operator=;
    Fixed() = default;
    explicit Fixed(T value) : T(std::move(value)) {}
    Fixed(const Fixed&) = default;
    Fixed& operator=(const Fixed& /*other*/) { return *this; }
    ~Fixed() = default;
};

/// The same of a reference, used like a pointer.
template <class T>
class Fixed<T&> {
public:
    explicit Fixed(T& target) : target(&target) {}
    Fixed(const Fixed&) = delete;
    Fixed& operator=(const Fixed& /*other*/) { return *this; }  // NOLINT(bugprone-unhandled-self-assignment)
    ~Fixed() = default;

    T& operator*() const { return *target; }
    T* operator->() const { return target; }

private:
    T* target;
};

/// Members that are made one by one and never copied, controls above all. Assigned one by one too: both sides have the
/// same number of them.
template <class T>
class Series : public std::deque<T> {
public:
    using std::deque<T>::deque;
    Series() = default;
    Series(const Series&) = delete;
    Series(Series&&) = default;  // NOLINT(performance-noexcept-move-constructor): that of std::deque allocates
    ~Series() = default;
    Series& operator=(Series&&) = delete;
    Series& operator=(const Series& other) {
        for (std::size_t place = 0; place < this->size() && place < other.size(); ++place)
            (*this)[place] = other[place];
        return *this;
    }
};

}  // namespace plandesk
