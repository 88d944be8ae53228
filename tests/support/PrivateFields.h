#pragma once

#include <tuple>

namespace test {

/**
 * Names private fields of a class, which keeps them but shows them to nobody.
 *
 * An explicit instantiation may name private members, so that, in this namespace,
 *
 *     struct ClassFields { friend auto fieldsOf(ClassFields); };
 *     template struct PrivateFields<ClassFields, &Class::m_one, &Class::m_two>;
 *
 * makes object.*std::get<1>(fieldsOf(ClassFields())) the private field "m_two" of a Class.
 */
template <typename Tag, auto... fields>
struct PrivateFields
{
    friend auto fieldsOf(Tag)
    {
        return std::make_tuple(fields...);
    }
};

} // namespace test
