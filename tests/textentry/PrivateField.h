#pragma once

/**
 * Reads a private field, of the kind that a class keeps but shows to nobody.
 *
 * An explicit instantiation may name private members, so that
 *
 *     struct Flag { using Type = bool Class::*; friend Type fieldOf(Flag); };
 *     template struct PrivateField<Flag, &Class::flag>;
 *
 * makes object.*fieldOf(Flag()) the private field "flag" of a Class.
 */
template <typename Tag, typename Tag::Type pointer>
struct PrivateField
{
    friend typename Tag::Type fieldOf(Tag)
    {
        return pointer;
    }
};
