#pragma once

/// A plot item that `owner` points to and that belongs to the holder of that pointer.
///
/// A plot deletes the items attached to it when it is destroyed. The item then empties the owner's
/// pointer, so that no item is deleted twice, whichever of the two goes first.
/// The owner may know the item by a base class only.
template <class item, class known_as = item>
class owned_item : public item
{
public:
    explicit owned_item(known_as*& owner)
        : owner(owner)
    {
        owner = this;
    }

    ~owned_item() override { owner = nullptr; }

    owned_item(const owned_item&) = delete;
    owned_item& operator=(const owned_item&) = delete;

private:
    known_as*& owner;
};
