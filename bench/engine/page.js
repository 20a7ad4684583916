// What the browser's objects ask of a document. It is evaluated for each new document before any script of the page, in a
// world of its own that the page's scripts can't see. Elements are named by numbers here, 0 for none.
globalThis.bench = (() => {
    "use strict";

    const numbers = new WeakMap();
    const elements = new Map();
    let lastNumber = 0;

    const numberOf = (element) => {
        if (!element)
            return 0;
        let number = numbers.get(element);
        if (!number)
            numbers.set(element, (number = ++lastNumber));
        elements.set(number, element);
        return number;
    };

    return {
        element: (number) => elements.get(number),

        /** The browser holds the element no longer. */
        release: (number) => void elements.delete(number),

        /** A property of the document. */
        get: (name) => document[name],

        /** Whether the top document may look into this one. */
        isOpenToTop() {
            try {
                return Boolean(window.top.document);
            } catch {
                return false;
            }
        },

        /** What is embedded, in document order: frames and other objects. */
        embeddings: () =>
            Array.from(document.querySelectorAll("iframe, frame, object, embed, applet"), (element) => ({
                element: numberOf(element),
                isFrame: Boolean(element.contentWindow),
            })),
    };
})();
