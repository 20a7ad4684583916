// The text of a document as its reader sees it, in one piece, and the hits of the last search in it.
bench.ReaderText = (() => {
    "use strict";

    /** Stands for the border of a block. No text holds it. */
    const Border = "\uFFFF";

    /** Display modes whose text goes on in the same line. */
    const inlineModes = new Set(["inline", "inline-block", "contents", "ruby"]);

    /** What shows something of its own in the place of its content. */
    const replaced = new Set([
        "AUDIO", "BR", "CANVAS", "EMBED", "HR", "IFRAME", "IMG", "INPUT", "MATH", "METER", "NOSCRIPT", "OBJECT", "PROGRESS",
        "SELECT", "SVG", "TEXTAREA", "VIDEO",
    ]);

    /** Such an element shows its summary only. */
    const isClosed = (element) => element.nodeName === "DETAILS" && !element.open;
    const isSummary = (element) => element.nodeName === "SUMMARY";

    /** Case doesn't count, and blanks match as the reader sees them: any number of any kind is one. */
    const makePattern = (words) => new RegExp(words.split(/\s+/).map(RegExp.escape).join("\\s+"), "giu");

    /** Blanks at the borders of blocks are not seen. A pattern for them would be tried at every blank of the text. */
    const hideOuterBlanks = (text) => {
        const pieces = [];
        let seen = 0;
        for (let border = text.indexOf(Border); border >= 0; border = text.indexOf(Border, seen)) {
            const before = text.slice(seen, border).trimEnd();
            const behind = border + text.slice(border).search(/[^\s\uFFFF]|$/);
            pieces.push(before, Border.repeat(behind - seen - before.length));
            seen = behind;
        }
        return pieces.join("") + text.slice(seen);
    };

    /** The node behind the whole content of a node, in document order. */
    const nodeBehind = (node) => {
        while (node && !node.nextSibling)
            node = node.parentNode;
        return node && node.nextSibling;
    };

    return class {
        #text = "";
        #runs = new Map(); // the runs of text by their nodes
        #cursor = null; // the run that was looked at last
        #hits = []; // where the hits of the last search begin and end, in turns
        #words = null; // of the last search
        #from = 0; // where it began

        constructor(root) {
            const pieces = [Border];
            let length = Border.length;
            let last = null;

            const addBorder = () => {
                pieces.push(Border);
                length += Border.length;
            };
            const addText = (node) => {
                const run = { node, start: length, previous: last, next: null };
                if (last)
                    last.next = run;
                last = run;
                this.#runs.set(node, run);
                pieces.push(node.data);
                length += node.length;
            };
            const addContent = (element, isSeen) => {
                if (isClosed(element)) {
                    const summary = Array.from(element.children).find(isSummary);
                    if (summary)
                        addElement(summary);
                    return;
                }
                for (let node = element.firstChild; node; node = node.nextSibling)
                    if (node instanceof Element)
                        addElement(node);
                    else if (node instanceof Text && isSeen && node.length)
                        addText(node);
            };
            const addElement = (element) => {
                if (replaced.has(element.nodeName.toUpperCase()))
                    return addBorder();
                const style = getComputedStyle(element);
                if (style.display === "none")
                    return;
                const isBlock = !inlineModes.has(style.display);
                if (isBlock)
                    addBorder();
                if (style.contentVisibility !== "hidden")
                    addContent(element, style.visibility === "visible");
                if (isBlock)
                    addBorder();
            };
            if (root)
                addElement(root);
            this.#text = hideOuterBlanks(pieces.join(""));
            this.#cursor = last;
        }

        /**
         * The first hit at or behind the place: the nodes and offsets directly before its first character and directly
         * behind its last, and how many further hits follow. Null when there is none.
         */
        find(words, place) {
            const hit = this.#findHit(words, this.#offsetOf(place));
            if (hit === this.#hits.length)
                return null;
            return {
                start: this.#locate(this.#hits[hit]),
                end: this.#locateEnd(this.#hits[hit + 1]),
                left: (this.#hits.length - hit) / 2 - 1,
            };
        }

        /** The text node has been split; `rest` is its second part. */
        split(node, rest) {
            const run = this.#runs.get(node);
            if (!run)
                return;
            run.next = { node: rest, start: run.start + node.length, previous: run, next: run.next };
            if (run.next.next)
                run.next.next.previous = run.next;
            this.#runs.set(rest, run.next);
        }

        /** The index in #hits of the first hit at or behind the offset. */
        #findHit(words, offset) {
            if (words !== this.#words || offset < this.#from)
                this.#search(words, offset);
            const hit = this.#indexOf(offset);
            if (hit === 0 || this.#hits[hit - 1] <= offset)
                return hit;
            // It is inside a hit, and what follows may overlap that one.
            this.#search(words, offset);
            return 0;
        }

        #search(words, from) {
            this.#words = words;
            this.#from = from;
            this.#hits = [];
            if (words.includes(Border))
                return;
            const pattern = makePattern(words);
            pattern.lastIndex = from;
            for (let hit = pattern.exec(this.#text); hit; hit = pattern.exec(this.#text))
                this.#hits.push(hit.index, pattern.lastIndex);
        }

        #indexOf(offset) {
            let low = 0;
            let high = this.#hits.length / 2;
            while (low < high) {
                const middle = (low + high) >> 1;
                if (this.#hits[2 * middle] < offset)
                    low = middle + 1;
                else
                    high = middle;
            }
            return 2 * low;
        }

        #offsetOf({ text, offset, parent, before }) {
            const run = this.#runs.get(text);
            if (run)
                return run.start + offset;
            for (let node = text ?? before ?? nodeBehind(parent); node; node = node.firstChild ?? nodeBehind(node))
                if (this.#runs.has(node))
                    return this.#runs.get(node).start;
            return this.#text.length;
        }

        #locate(offset) {
            while (offset < this.#cursor.start)
                this.#cursor = this.#cursor.previous;
            while (offset >= this.#cursor.start + this.#cursor.node.length)
                this.#cursor = this.#cursor.next;
            return { text: this.#cursor.node, offset: offset - this.#cursor.start };
        }

        #locateEnd(offset) {
            const last = this.#locate(offset - 1);
            return { text: last.text, offset: last.offset + 1 };
        }
    };
})();
