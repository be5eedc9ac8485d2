#pragma once

/// A place between two characters of a document.
struct TextPlace
{
    /// The number of the text block.
    int text = 0;
    /// The number of UTF-16 units before the place.
    int offset = 0;

    bool operator==(const TextPlace &) const = default;
    bool operator<(const TextPlace &other) const
    {
        return text < other.text || (text == other.text && offset < other.offset);
    }
};

/// The part of a document between two places, of which `first` is not after `last`.
struct TextRange
{
    TextPlace first;
    TextPlace last;

    bool isEmpty() const { return first == last; }
    bool operator==(const TextRange &) const = default;

    static TextRange between(TextPlace one, TextPlace other)
    {
        return one < other ? TextRange{one, other} : TextRange{other, one};
    }
    /// The selected offsets of one text of a given length; both are equal if none of it is selected.
    struct Part
    {
        int start = 0;
        int end = 0;
    };
    Part within(int text, int length) const
    {
        if (text < first.text || text > last.text || isEmpty())
            return {};
        return {text == first.text ? first.offset : 0, text == last.text ? last.offset : length};
    }
};
