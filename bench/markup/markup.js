// The markup services of a document: pointers into it by numbers, search, and elements put around what is between two
// pointers. The browser sends what it has to do as one list, so that many small calls in a row cost one message.
bench.markup = (() => {
    "use strict";

    const { places, ReaderText } = bench;

    /** How long a text may be used: what the page's styles hide may change without a trace. */
    const KeepMs = 1000;

    /** In these only certain elements may stand. */
    const tableParts = new Set(["TABLE", "THEAD", "TBODY", "TFOOT", "TR"]);

    /** An attribute's name, and its value in double, single or no quotes. */
    const attribute = /([^\s=]+)(?:\s*=\s*(?:"([^"]*)"|'([^']*)'|(\S*)))?/g;

    const inlineTags = new Set(["FONT"]);

    /** A pointer knows its place by itself while the browser works, and by the engine's means while the page may. */
    class Pointer {
        place = null;
        keepsRight = false;
        isLost = false; // the hit that its caller was promised has gone
        #range = new Range();

        moveTo(place) {
            this.place = place;
            this.isLost = false;
        }

        update() {
            if (this.place)
                this.place = places.ofRange(this.#range);
        }

        settle() {
            if (this.place)
                places.setRange(this.#range, this.place);
        }
    }

    const pointers = new Map();
    const models = new Map(); // of elements to be made, by tag and then by attributes
    let text = null; // while it is known to be what the page shows
    let texts = []; // of the list under way
    let keepUntil = 0;

    const observer = new MutationObserver(() => forgetText());

    const forgetText = () => {
        text = null;
        observer.disconnect();
    };

    const getText = () => {
        if (!text) {
            text = new ReaderText(document.documentElement);
            keepUntil = performance.now() + KeepMs;
        }
        return text;
    };

    const pointersAt = (place) => {
        const found = [];
        for (const pointer of pointers.values())
            if (pointer.place && places.isSame(pointer.place, place))
                found.push(pointer);
        return found;
    };

    const putPointers = (at, left, right) => {
        for (const pointer of at)
            pointer.place = pointer.keepsRight ? right : left;
    };

    /** Makes the place one between two nodes. */
    const openPlace = ({ text: node, offset, parent, before }) => {
        if (!node)
            return { parent, before };
        if (offset > 0 && offset < node.length) {
            const rest = node.splitText(offset);
            text?.split(node, rest);
            for (const pointer of pointers.values())
                if (pointer.place?.text === node && pointer.place.offset > offset)
                    pointer.place = { text: rest, offset: pointer.place.offset - offset };
        }
        return { parent: node.parentNode, before: offset === 0 ? node : node.nextSibling };
    };

    /** Puts the element around siblings. Frames among them keep their pages. */
    const wrapRun = (element, { parent, first, behind }) => {
        parent.insertBefore(element, first);
        for (let node = first; node !== behind; node = element.nextSibling)
            element.moveBefore(node, null);
    };

    /** What must not be put into an element as a whole is taken apart. */
    const divideRun = (run) => {
        if (!tableParts.has(run.parent.nodeName))
            return [run];
        const runs = [];
        for (let node = run.first; node !== run.behind; node = node.nextSibling)
            if (node.firstChild)
                runs.push(...divideRun({ parent: node, first: node.firstChild, behind: null }));
        return runs;
    };

    /** Puts the element around what is between two places; where that crosses the border of another, copies of it. */
    const wrap = (element, start, end) => {
        const runs = places.runsBetween(start, end).flatMap(divideRun);
        if (!runs.length) {
            (start.parent ?? start.before.parentNode).insertBefore(element, start.before);
            return [element];
        }
        return runs.map((run, n) => {
            const wrapper = n === 0 ? element : element.cloneNode(false);
            if (n > 0)
                wrapper.removeAttribute("id");
            wrapRun(wrapper, run);
            return wrapper;
        });
    };

    const insert = (element, start, end) => {
        if (!element || element.isConnected || !places.isInOrder(start, end))
            return false;
        const atStart = pointersAt(start);
        const atEnd = pointersAt(end);
        const behind = openPlace(end);
        const wrappers = wrap(element, openPlace(start), behind);
        const last = wrappers.at(-1);
        if (places.isSame(start, end))
            putPointers(atStart, places.before(null, element), places.behind(element));
        else {
            putPointers(atStart, places.before(null, element), places.firstIn(element));
            putPointers(atEnd, places.lastIn(last), places.behind(last));
        }
        if (!inlineTags.has(element.nodeName))
            text = null;
        return true;
    };

    /** The number of further hits behind the one found, -1 when none is found. */
    const find = (pointer, words, end) => {
        const hit = getText().find(words, pointer.place);
        if (!hit)
            return -1;
        pointer.moveTo(places.inText(hit.start.text, hit.start.offset));
        end?.moveTo(places.inText(hit.end.text, hit.end.offset));
        return hit.left;
    };

    const adjacentPlaces = [
        (element) => places.before(null, element),
        (element) => places.firstIn(element),
        (element) => places.lastIn(element),
        (element) => places.behind(element),
    ];

    /** An element from its tag and the text of its attributes. */
    const makeModel = (tag, attributes) => {
        const element = document.createElement(tag);
        for (const [, name, ...values] of attributes.matchAll(attribute)) {
            const value = values.find((text) => text !== undefined) ?? "";
            // A page may forbid the attribute.
            if (name.toLowerCase() === "style")
                element.style.cssText = value;
            else
                element.setAttribute(name, value);
        }
        return element;
    };

    const make = (tag, attributes) => {
        const ofTag = models.get(tag) ?? new Map();
        models.set(tag, ofTag);
        if (!ofTag.has(attributes))
            ofTag.set(attributes, makeModel(tag, attributes));
        return ofTag.get(attributes).cloneNode(false);
    };

    const at = (number) => pointers.get(number);

    /** What can stand in the list. */
    const operations = {
        pointer: (number) => void pointers.set(number, new Pointer()),
        drop: (number) => void pointers.delete(number),
        gravity: (number, keepsRight) => void (at(number).keepsRight = Boolean(keepsRight)),
        moveToStart: (number) => at(number).moveTo(places.firstIn(document)),
        moveToEnd: (number) => at(number).moveTo(places.lastIn(document)),
        moveToPointer: (number, other) => at(number).moveTo(at(other).place),
        moveToElement(number, element, adjacency) {
            if (!bench.element(element).isConnected)
                return false;
            at(number).moveTo(adjacentPlaces[adjacency](bench.element(element)));
            return true;
        },
        isEqual: (number, other) => places.isSame(at(number).place, at(other).place),
        find: (number, words, end) => find(at(number), texts[words], at(end)),
        /** The same, for a caller who has been told already that there is a hit. */
        findNext: (number, words, end) => void (at(number).isLost = find(at(number), texts[words], at(end)) < 0),
        make: (element, tag, attributes) => bench.hold(element, make(texts[tag], texts[attributes])),
        release: (element) => bench.release(element),
        insert: (element, start, end) => !at(start).isLost && insert(bench.element(element), at(start).place, at(end).place),
    };

    /** Does lines again, each time for the next of the elements that the browser numbers, from -1 down. */
    const repeat = (lines, times) => {
        const next = (number, n) => (number < 0 ? number - n : number);
        let answer = null;
        for (let n = 1; n <= times; ++n)
            for (const [operation, first, second, third] of lines)
                answer = operation(next(first, n), next(second, n), next(third, n));
        return answer;
    };

    const begin = () => {
        const isKept = text && observer.takeRecords().length === 0 && performance.now() < keepUntil;
        observer.disconnect();
        if (isKept)
            return;
        text = null;
        for (const pointer of pointers.values())
            pointer.update();
    };

    const end = () => {
        for (const pointer of pointers.values())
            pointer.settle();
        if (text)
            observer.observe(document, { subtree: true, childList: true, characterData: true, attributes: true });
    };

    return {
        /**
         * Does what the list says, a line for each operation: its name and numbers, of which those for texts are indices.
         * A line "repeat" tells how many of the last ones are done again, and how often. Answers what the last one answers.
         */
        run(list, listTexts) {
            texts = listTexts;
            begin();
            try {
                const lines = [];
                let answer = null;
                for (const line of list.split("\n")) {
                    const [name, ...words] = line.split(" ");
                    const numbers = words.map(Number);
                    if (name === "repeat")
                        answer = repeat(lines.slice(-numbers[0]), numbers[1]);
                    else {
                        lines.push([operations[name], ...numbers]);
                        answer = operations[name](...numbers);
                    }
                }
                return answer ?? null;
            } finally {
                end();
            }
        },
    };
})();
