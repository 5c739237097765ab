// Controls, or menu entries, of one name.
#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace ui {

// The members by their index from 0. One that does not exist throws std::out_of_range.
template <class T>
class ControlArray
{
public:
    explicit ControlArray(std::vector<std::reference_wrapper<T>> members) : m_members(std::move(members)) {}

    T& operator[](int index) const { return m_members.at(static_cast<std::size_t>(index)); }
    auto begin() const { return m_members.begin(); }
    auto end() const { return m_members.end(); }

    int Count() const { return static_cast<int>(m_members.size()); }

private:
    std::vector<std::reference_wrapper<T>> m_members;
};

} // namespace ui
