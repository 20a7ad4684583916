// Places between the characters and tags of a document. A place beside text is told by the text node and an offset, any
// other by the node behind it, or by the parent when it is the last place in it. Each place has one form only.
bench.places = (() => {
    "use strict";

    /** The place before a node, or the last one in the parent when there is no node. */
    const before = (parent, node) => {
        const previous = node ? node.previousSibling : parent.lastChild;
        if (previous instanceof Text)
            return inText(previous, previous.length);
        return node instanceof Text ? { text: node, offset: 0 } : { parent: node ? null : parent, before: node };
    };

    const inText = (text, offset) =>
        offset === 0 && text.previousSibling instanceof Text ?
            inText(text.previousSibling, text.previousSibling.length)
        :   { text, offset };

    const isSame = (left, right) =>
        left.text === right.text && left.offset === right.offset && left.parent === right.parent &&
        left.before === right.before;

    const setRange = (range, { text, offset, parent, before }) => {
        if (text)
            range.setStart(text, offset);
        else if (before)
            range.setStartBefore(before);
        else
            range.setStart(parent, parent.childNodes.length);
        range.collapse(true);
    };

    return {
        before,
        inText,
        isSame,
        setRange,

        behind: (node) => before(node.parentNode, node.nextSibling),
        firstIn: (node) => before(node, node.firstChild),
        lastIn: (node) => before(node, null),

        ofRange: ({ startContainer: node, startOffset: offset }) =>
            node instanceof Text ? inText(node, offset) : before(node, node.childNodes[offset] ?? null),

        /** Whether the second place is the first or stands behind it. */
        isInOrder(first, second) {
            if (first.text && first.text === second.text)
                return first.offset <= second.offset;
            const ranges = [new Range(), new Range()];
            setRange(ranges[0], first);
            setRange(ranges[1], second);
            return ranges[0].compareBoundaryPoints(Range.START_TO_START, ranges[1]) <= 0;
        },

        /** The runs of siblings that make up what is between two places that stand between nodes. */
        runsBetween(start, end) {
            const runs = [];
            const add = (parent, first, last) => {
                if (first !== last)
                    runs.push({ parent, first, behind: last });
            };
            const endParent = end.parent ?? end.before.parentNode;
            let parent = start.parent ?? start.before.parentNode;
            let first = start.before;
            for (; !parent.contains(endParent); parent = parent.parentNode) {
                add(parent, first, null);
                first = parent.nextSibling;
            }
            const path = [];
            for (let node = endParent; node !== parent; node = node.parentNode)
                path.unshift(node);
            for (const node of path) {
                add(parent, first, node);
                parent = node;
                first = node.firstChild;
            }
            add(parent, first, end.before);
            return runs;
        },
    };
})();
