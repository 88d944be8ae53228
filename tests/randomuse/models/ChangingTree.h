#pragma once

#include "Tree.h"
#include "Values.h"

namespace soak {

/// A small tree of directories and files that come, go and become unreadable.
class ChangingTree
{
public:
    ChangingTree();
    /// Gives back the permissions, so that the tree can be removed.
    ~ChangingTree();

    /// Of some place in the tree, whether there is anything or not.
    QString path(Values& values) const;
    void change(Values& values);

private:
    static QString place(Values& values);

    test::Tree m_tree;
};

} // namespace soak
