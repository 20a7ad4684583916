// What the browser's objects ask of a document. It is evaluated for each new document before any script of the page, in a
// world of its own that the page's scripts can't see. Elements are named by numbers here, 0 for none.
globalThis.bench = (() => {
    "use strict";

    const numbers = new WeakMap();
    const elements = new Map();
    let lastNumber = 0;

    const numberOf = (element) => {
        let number = numbers.get(element);
        if (!number)
            numbers.set(element, (number = ++lastNumber));
        elements.set(number, element);
        return number;
    };

    /** What the browser's object of an element needs to know from the start. */
    const describe = (element) =>
        element ? { element: numberOf(element), tag: element.tagName.toUpperCase() } : null;

    const embedded = () => Array.from(document.querySelectorAll("iframe, frame, object, embed, applet"));

    /** The elements within an element or, by 0, the document: "all", "children", or those with a tag. */
    const collect = (number, kind) => {
        const owner = elements.get(number) ?? document;
        if (kind === "children")
            return owner.children;
        return owner.getElementsByTagName(kind === "all" ? "*" : kind);
    };

    // Scripts in links are run by the browser, which asks its listeners first.
    window.addEventListener("click", (event) => {
        const link = event.composedPath().find((each) => each.localName === "a" || each.localName === "area");
        if (event.defaultPrevented || !link?.href?.toLowerCase?.().startsWith("javascript:"))
            return;
        event.preventDefault();
        benchNavigate(link.href);
    });

    // A title that a script changes.
    if (window === window.top)
        window.addEventListener("DOMContentLoaded", () => {
            if (document.head)
                new MutationObserver(() => benchTitle(document.title)).observe(document.head, {
                    childList: true,
                    characterData: true,
                    subtree: true,
                });
        });

    return {
        element: (number) => elements.get(number),

        /** Holds an element under a number that the browser chose for it, below 0. */
        hold(number, element) {
            numbers.set(element, number);
            elements.set(number, element);
        },

        /** The browser holds the element no longer. */
        release: (number) => void elements.delete(number),

        /** A property of the document, of its window, or of an element. */
        get: (name) => document[name],
        getOfWindow: (name) => window[name],
        getOf: (number, name) => elements.get(number)[name],
        put: (name, value) => void (document[name] = value),
        putOf: (number, name, value) => void (elements.get(number)[name] = value),

        /** An element that a property of the document or of an element leads to. */
        elementOf: (number, name) => describe((elements.get(number) ?? document)[name]),

        getAttribute: (number, name) => elements.get(number).getAttribute(name),
        setAttribute: (number, name, value) => elements.get(number).setAttribute(name, value),
        contains: (number, other) => elements.get(number).contains(elements.get(other)),
        click: (number) => elements.get(number).click(),

        count: (number, kind) => collect(number, kind).length,
        item: (number, kind, index) => describe(collect(number, kind)[index]),
        namedItem: (number, kind, name) => describe(collect(number, kind).namedItem(name)),

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
            embedded().map((element) => ({ ...describe(element), isFrame: Boolean(element.contentWindow) })),

        /** The frames among them; a frame's number as an element, by its place or its name, 0 for none. */
        frameCount: () => embedded().filter((element) => element.contentWindow).length,
        frame(which) {
            const frames = embedded().filter((element) => element.contentWindow);
            const frame = typeof which === "number" ? frames[which] : frames.find((each) => each.name === which);
            return frame ? numberOf(frame) : 0;
        },
    };
})();
